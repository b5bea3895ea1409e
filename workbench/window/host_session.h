#pragma once

// The host's work without its windows: the plug-in on one side, the simulated tracker on the other, and what
// passes between them. Configurations travel as files: a read one lies in a temporary folder until the
// plug-in has taken it, a written one is removed when the tracker has taken it and kept when it refused.

#include "tracker/simulated_tracker.h"
#include "window/plugin_link.h"

#include <QTemporaryDir>

class HostSession : public QObject
{
    Q_OBJECT

public:
    explicit HostSession(const QString& trackerFolder, QObject* parent = nullptr);
    ~HostSession() override;

    // Loads the plug-in; when that fails, link().error() says why and everything below has no effect.
    bool start(const QString& pluginPath);

    PluginLink& link() { return link_; }
    tracker::SimulatedTracker& tracker() { return tracker_; }

    // Opens windows of the plug-in. The first two need an attached tracker; false when it gave no
    // configuration.
    bool readConfiguration(bool full);
    bool liveTelemetry();
    void openConfiguration(const QString& path, bool full) { link_.openConfiguration(path, full, true); }
    void newConfiguration(bool full) { link_.openConfiguration({}, full, false); }

Q_SIGNALS:
    void helpRequested(const QString& page);
    // The tracker took a written file or refused it.
    void configurationWritten(const tracker::WriteReport& report);

private:
    void receive(vlk::Message id, void* p1, void* p2);
    void handOver(const QString& path);
    void tellAttached(bool attached);

    QTemporaryDir readFiles_;
    tracker::SimulatedTracker tracker_;
    PluginLink link_;
};
