#pragma once

// The host's work without its windows: the plug-in on one side, the simulated tracker on the other, and what
// passes between them. Configurations travel as files: a read one lies in a temporary folder until the
// plug-in has taken it, a written one goes its way (road/write_road.h) and is removed when the tracker holds
// it and kept when it does not.
//
// What the plug-in is given is whole: it takes a document that it cannot read for an empty one and would show
// default values in its place.

#include "road/backups.h"
#include "road/write_road.h"
#include "tracker/simulated_tracker.h"
#include "window/edited_configuration.h"
#include "window/file_comparer.h"
#include "window/plugin_link.h"
#include "window/repeated_requests.h"
#include "window/simulated_port.h"
#include "window/tracker_commands.h"
#include "window/unwritten_files.h"

#include <QTemporaryDir>

#include <functional>

namespace workbench {

class HostSession : public QObject
{
    Q_OBJECT

public:
    HostSession(const QString& trackerFolder, const QString& backupsFolder, QObject* parent = nullptr);
    ~HostSession() override;

    // Loads the plug-in; when that fails, link().error() says why and everything below has no effect.
    bool start(const QString& pluginPath);

    PluginLink& link() { return link_; }
    tracker::SimulatedTracker& tracker() { return tracker_; }
    RepeatedRequests& requests() { return requests_; }
    TrackerCommands& commands() { return commands_; }
    WriteRoad& road() { return road_; }
    Backups& backups() { return backups_; }
    const FileComparer& comparer() const { return comparer_; }
    const EditedConfiguration& edited() const { return edited_; }

    // Open windows of the plug-in. Null when they did; else it says to the user what happened and what to do.
    Sentence readConfiguration(bool full);
    Sentence liveTelemetry();
    Sentence openConfiguration(const QString& path, bool full);
    void newConfiguration(bool full);
    // Null when the file is a whole configuration of this model; else it says why it would not open.
    Sentence whyNotOpened(const QString& path) const;

    TrackerIdentity attachedTracker() const { return port_.tracker(); }
    // What the tracker holds now; none, with why, when it does not come.
    std::optional<QByteArray> present(Sentence& why);
    // Put on the write road. Null, or why it is not; what becomes of it there its report tells.
    Sentence writeAgain(const WriteRequest& request);
    // Brings back only these paths where there are some.
    Sentence bringBack(int backup, const QStringList& paths = {});
    // What the tracker kept before the last write.
    Sentence bringBackPrevious();

    // The configuration window is closed.
    void configurationClosed();
    // What is asked for when the plug-in wants a file to be written: a line for each field of it that was not
    // taken as it was typed.
    void setTyped(std::function<QStringList()> typed) { typed_ = std::move(typed); }
    // Backups are kept for so many days; 0: for ever.
    void keepFor(int days);
    // The plug-in could not save the file that it wanted to be written.
    void writeNotSaved(const QString& path, const QString& reason);

Q_SIGNALS:
    void helpRequested(const QString& page);
    // A second file while one is on its way: it is not written.
    void writeRefused();
    void editedChanged();

private:
    struct Fetched
    {
        Sentence failure; // for the user: all but the first sentence
        QByteArray document;
        QString path; // a temporary file that holds it
    };

    Fetched fetchConfiguration();
    Sentence readFile(const QString& path, QByteArray* document) const;
    void receive(vlk::Message id, void* p1, void* p2);
    void deliver(vlk::Message id, void* p1, void* p2);
    void followSearch(vlk::Message id, const void* p1);
    void takeWritten(const QString& path);
    void begin(const WriteRequest& request, int opened, bool isAgain);
    void finish(const RoadReport& report);
    void followSettled(const RoadReport& report);
    // The tracker holds it: what was kept of it for the next try has done its work.
    void dropWritten(const WriteRequest& request);
    void tellAttached(bool attached);

    QTemporaryDir readFiles_;
    tracker::SimulatedTracker tracker_;
    PluginLink link_;
    RepeatedRequests requests_{tracker_, [this] { return link_.runningWork().saving != 0; }};
    TrackerCommands commands_{tracker_, requests_, link_};
    bool isSearching_ = false; // for Bluetooth devices
    EditedConfiguration edited_{[this](const QByteArray& before, const QByteArray& after) {
        return comparer_.compare(before, after);
    }};
    int opened_ = 0; // how many configurations so far
    FileComparer comparer_{link_};
    SimulatedPort port_{tracker_};
    std::function<QStringList()> typed_;
    UnwrittenFiles unwritten_;
    Backups backups_;
    WriteRoad road_;
    bool isAgain_ = false; // what is on the road has been there before
    int openedThen_ = -1;  // which of the opened configurations is on the road; -1: one of an earlier run
};

} // namespace workbench
