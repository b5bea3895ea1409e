#pragma once

// Tells what the plug-in finds out about a file that was opened and has no window for, as it tells its log:
// in the status line and in a box, all that comes of one command together.

#include "window/plugin_log.h"

#include <QPair>
#include <QVector>

class QWidget;

namespace vlk {

class StatusLine;

class FileNotices : public QObject
{
    Q_OBJECT

public:
    FileNotices(const PluginLog& log, StatusLine& status, QWidget* mainWindow);

private:
    void note(const QString& category, const QString& message);
    void tell();

    StatusLine& status_;
    QWidget* mainWindow_;
    QVector<QPair<QString, QString>> noted_; // category and message
};

} // namespace vlk
