#pragma once

// Tells what the plug-in finds out about a file that was opened, as it tells its log: in the status line and,
// where no window of the plug-in shows it, in a box, all that comes of one command together. Edits that wait
// for their configuration stand in the main window's bar while none is open, until they are written or the
// user closes it.

#include "window/plugin_log.h"

#include <QPair>
#include <QSet>
#include <QVector>

class QWidget;

namespace vlk {
class NoticeBar;
} // namespace vlk

namespace workbench {

class StatusLine;

class FileNotices : public QObject
{
    Q_OBJECT

public:
    FileNotices(const PluginLog& log, StatusLine& status, vlk::NoticeBar& bar, QWidget* mainWindow);

    // Whatever waits is offered there.
    void configurationOpened();

private:
    void note(PluginLog::Topic topic, const QString& category, const QString& message);
    // The edits that are written wait no longer.
    void forget(const QString& category, const QString& message);
    void tell();
    void tellWaiting();

    StatusLine& status_;
    vlk::NoticeBar& bar_;
    QWidget* mainWindow_;
    using Noted = QVector<QPair<QString, QString>>; // category and message

    Noted noted_;
    Noted waiting_;       // edits that the bar told last
    QSet<QString> known_; // messages that the user closed
    bool needsBox_ = false;
};

} // namespace workbench
