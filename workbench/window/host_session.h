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
#include "window/repeated_requests.h"
#include "window/tracker_commands.h"

#include <QTemporaryDir>

#include <vector>

namespace workbench {

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
    RepeatedRequests& requests() { return requests_; }
    TrackerCommands& commands() { return commands_; }
    const EditedConfiguration& edited() const { return edited_; }

    // Open windows of the plug-in. Null when they did; else it says to the user what happened and what to do.
    Sentence readConfiguration(bool full);
    Sentence liveTelemetry();
    Sentence openConfiguration(const QString& path, bool full);
    void newConfiguration(bool full);
    // Null when the file is a whole configuration of this model; else it says why it would not open.
    Sentence whyNotOpened(const QString& path) const;

    // Asked before a configuration is written that sets every key and was not read from the tracker: with the
    // name of the file that it came from, empty for a new one. Without it nothing is asked.
    using ReplaceQuestion = std::function<bool(const QString& file)>;
    void setReplaceQuestion(ReplaceQuestion question) { mayReplace_ = std::move(question); }

    // The configuration window is closed.
    void configurationClosed();
    // The tracker takes at once what it would take later. False when it refused some of it.
    bool finishWrites();
    // The plug-in could not save the file that it wanted to be written.
    void writeNotSaved(const QString& path, const QString& reason);

Q_SIGNALS:
    void helpRequested(const QString& page);
    // A file is on its way to the tracker; writeEnded() follows.
    void writeBegan();
    // The tracker took a written file or refused it, or it did not come so far.
    void writeEnded(const tracker::WriteReport& report);
    // The user was asked and did not want it written; its file is gone.
    void writeCancelled();
    void editedChanged();

private:
    struct Fetched
    {
        Sentence failure; // for the user: all but the first sentence
        QByteArray document;
        QString path; // a temporary file that holds it
    };

    // A written file on its way, and which of the configurations that were opened it is of.
    struct Write
    {
        QString path;
        int opened;
        bool isUnseen; // it replaces what nobody has looked at
        QString file;  // that it came from
    };

    Fetched fetchConfiguration();
    Sentence readFile(const QString& path, QByteArray* document) const;
    void receive(vlk::Message id, void* p1, void* p2);
    void deliver(vlk::Message id, void* p1, void* p2);
    void followSearch(vlk::Message id, const void* p1);
    void handOver(const Write& write);
    bool finish(const QString& path);
    void tellAttached(bool attached);

    QTemporaryDir readFiles_;
    tracker::SimulatedTracker tracker_;
    PluginLink link_;
    RepeatedRequests requests_{tracker_, [this] { return link_.runningWork().saving != 0; }};
    TrackerCommands commands_{tracker_, requests_, link_};
    bool isSearching_ = false; // for Bluetooth devices
    EditedConfiguration edited_;
    int opened_ = 0; // how many configurations so far
    std::vector<Write> writes_;
    ReplaceQuestion mayReplace_;
};

} // namespace workbench
