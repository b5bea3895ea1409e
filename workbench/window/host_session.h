#pragma once

// The host's work without its windows: the plug-in on one side, the simulated tracker on the other, and what
// passes between them. Configurations travel as files: a read one lies in a temporary folder until the
// plug-in has taken it, a written one is removed when the tracker has taken it and kept when it refused.
//
// What the plug-in is given is whole: it takes a document that it cannot read for an empty one and would show
// default values in its place.

#include "tracker/simulated_tracker.h"
#include "window/edited_configuration.h"
#include "window/plugin_link.h"

#include <QTemporaryDir>

#include <vector>

namespace vlk {

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
    const EditedConfiguration& edited() const { return edited_; }

    // Open windows of the plug-in. Empty when they did; else a text for the user that says what happened and
    // what to do.
    QString readConfiguration(bool full);
    QString liveTelemetry();
    QString openConfiguration(const QString& path, bool full);
    void newConfiguration(bool full);

    // Asked before a new configuration, which sets every key, is written; without it nothing is asked.
    void setReplaceQuestion(std::function<bool()> question) { mayReplace_ = std::move(question); }

    // The configuration window is closed.
    void configurationClosed();
    // The tracker takes at once what it would take later.
    void finishWrites();
    // The plug-in could not save the file that it wanted to be written.
    void writeNotSaved(const QString& path, const QString& reason);

Q_SIGNALS:
    void helpRequested(const QString& page);
    // A file is on its way to the tracker; configurationWritten() follows.
    void writeBegan();
    // The tracker took a written file or refused it, or it did not come so far.
    void configurationWritten(const tracker::WriteReport& report);
    // The user was asked and did not want it written; its file is gone.
    void writeCancelled();
    void editedChanged();

private:
    struct Fetched
    {
        QString failure; // of the text for the user: all but its first sentence
        QByteArray document;
        QString path; // a temporary file that holds it
    };

    // A written file on its way, and which of the configurations that were opened it is of.
    struct Write
    {
        QString path;
        int opened;
    };

    Fetched fetchConfiguration();
    void receive(vlk::Message id, void* p1, void* p2);
    void handOver(const Write& write, bool ask);
    void finish(const QString& path);
    void tellAttached(bool attached);

    QTemporaryDir readFiles_;
    tracker::SimulatedTracker tracker_;
    PluginLink link_;
    EditedConfiguration edited_;
    int opened_ = 0; // how many configurations so far
    std::vector<Write> writes_;
    std::function<bool()> mayReplace_;
};

} // namespace vlk
