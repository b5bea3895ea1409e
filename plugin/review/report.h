#pragma once

// A configuration as a document to print or to keep: page by page, in words and units.

#include "review/advice.h"
#include "review/difference_text.h"

#include <QStringList>

#include <optional>

namespace vlk::review {

struct Report
{
    QString title;
    QStringList about;                      // lines below the title: which tracker, when
    QStringList advice;                     // sentences
    std::optional<std::vector<int>> keys{}; // told alone
    Secrets secrets = Secrets::Masked;
    // Told alone, with what was there before: those that a person would count.
    const Differences* changes = nullptr;
    bool isOnePage = false; // in two columns
    QString end{};          // a sentence below all
};

// Plain HTML of the kind that QTextDocument lays out too. Keys that the configuration does not write are left
// out, and those that no window shows.
QString toHtml(const Configuration& configuration, const Report& report);

// What a reader chooses of it.
struct ReportChoice
{
    bool isChangesAlone = false;
    // Without the changes: what is not at its default value.
    bool isOnePage = false;
    Secrets secrets = Secrets::Masked;
};

// The report as it is handed out: the object's name, `about`, the date, and the advice that stands. `changes`
// stay while it is used.
Report reportOf(const Configuration& configuration, const Differences& changes,
                const std::vector<Finding>& advice, const QStringList& about, const ReportChoice& choice);

} // namespace vlk::review
