#pragma once

// What became of numbers that were still being typed when a save or a write came, as the plug-in tells its
// log: kept for the user until the file that they went into is saved or written, or another value is typed.
// One line a field, the last one counts.

#include "window/plugin_log.h"

#include <QStringList>

namespace workbench {

class TypingNotices : public QObject
{
    Q_OBJECT

public:
    explicit TypingNotices(const PluginLog& log);

    // What is to be told with a file that is saved or written, a line a field. None for most.
    const QStringList& lines() const { return lines_; }
    // Another configuration opens, or it has been told.
    void forget() { lines_.clear(); }

private:
    void note(const QString& line);
    void forget(const QString& field);

    QStringList lines_;
};

} // namespace workbench
