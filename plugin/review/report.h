#pragma once

// A configuration as a document to print or to keep: page by page, in words and units.

#include "review/difference_text.h"

#include <QStringList>

namespace vlk::review {

struct Report
{
    QString title;
    QStringList about;     // lines below the title: which tracker, when
    QStringList advice;    // sentences
    std::vector<int> keys; // told alone; none: all
    Secrets secrets = Secrets::masked;
};

// Plain HTML of the kind that QTextDocument lays out too. Keys that the configuration does not write are left
// out, and those that no window shows.
QString toHtml(const Configuration& configuration, const Report& report);

} // namespace vlk::review
