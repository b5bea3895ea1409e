#pragma once

// What the pages of both windows hold, as one configuration: what a write or a save would bring now, and how
// it becomes another one in one step of the history.

#include "dialog/edit_history.h"
#include "document/configuration.h"
#include "review/recovery.h"

#include <QByteArray>
#include <QMap>

#include <functional>

struct CXmlSection;

namespace vlk {

class OpenConfiguration
{
public:
    // `isQuick`: whether the quick window is on show, whose values a write lays over the others. The last
    // page of the history is then that window's.
    OpenConfiguration(EditHistory& history, std::function<bool()> isQuick)
        : history_(history), isQuick_(std::move(isQuick))
    {
    }

    bool isQuick() const { return isQuick_(); }
    PageSettings& quickPage() const { return *history_.pages().back(); }
    // By path; empty unless that window is on show.
    QMap<QString, QString> quickValues() const;
    // Null where no page has the table.
    PageSettings* pageOf(int table) const;
    const Values* valuesOf(int table) const;

    // What the full window holds.
    Configuration inFull() const;
    // What a write would bring now.
    Configuration written() const;
    // What a save would write of the settings now.
    QByteArray document() const;
    // What the window on show would write had it been given this document.
    QByteArray rewritten(const QByteArray& document) const;

    // What the full window comes to hold, and what a write would bring then: the same while it is on show.
    // What quick setup has no place for stands in the first alone.
    struct Changed
    {
        Configuration inFull;
        Configuration written;
    };
    // `quick`: values of that window that stand whatever the configuration makes of them.
    void put(const Changed& changed, const QMap<QString, QString>& quick, const EditHistory::Words& words);
    // What was edited earlier.
    void bringBack(const review::Unsaved& unsaved, const EditHistory::Words& words);

private:
    void write(CXmlSection& root) const;

    EditHistory& history_;
    const std::function<bool()> isQuick_;
};

} // namespace vlk
