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

    // A file is saved or written: what is to be told with it, one text for the user. Empty for most.
    QString take();
    // What take() would tell, a line a field.
    const QStringList& lines() const { return lines_; }
    // Another configuration opens.
    void forget() { lines_.clear(); }

private:
    void note(const QString& line);
    void forget(const QString& field);

    QStringList lines_;
};

} // namespace workbench
