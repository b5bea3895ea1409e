#pragma once

// Tells what became of the files that the plug-in saves: a saved one stands in the status line and among the
// recent files, one that was not saved is told with its reason, and one that holds damaged records with their
// number.

#include "window/save_watch.h"

namespace vlk {

class HostSession;
class LinkNotices;
class PluginWindows;
class RecentFiles;
class StatusLine;

class SaveNotices : public QObject
{
    Q_OBJECT

public:
    SaveNotices(HostSession& session, LinkNotices& link, const PluginWindows& windows, RecentFiles& recent,
                StatusLine& status, QWidget* mainWindow);

private:
    void tellSaved(const QString& path);
    void warn(const std::function<QString()>& sentence);
    void tellFailed(const QString& path, const QString& reason);

    HostSession& session_;
    LinkNotices& link_;
    RecentFiles& recent_;
    StatusLine& status_;
    QWidget* mainWindow_;
    SaveWatch watch_;
};

} // namespace vlk
