#pragma once

// Tells what the plug-in finds out about a file that was opened, as it tells its log: in the status line and,
// where no window of the plug-in shows it, in a box, all that comes of one command together.

#include "window/plugin_log.h"

#include <QPair>
#include <QVector>

class QWidget;

namespace workbench {

class StatusLine;

class FileNotices : public QObject
{
    Q_OBJECT

public:
    FileNotices(const PluginLog& log, StatusLine& status, QWidget* mainWindow);

private:
    void note(PluginLog::Topic topic, const QString& category, const QString& message);
    void tell();

    StatusLine& status_;
    QWidget* mainWindow_;
    QVector<QPair<QString, QString>> noted_; // category and message
    bool needsBox_ = false;
};

} // namespace workbench
