#include "window/host_session.h"

#include <QFile>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcSession, "vlk.workbench.session")

HostSession::HostSession(const QString& trackerFolder, QObject* parent)
    : QObject(parent), tracker_(trackerFolder)
{
    tracker_.setSender([this](vlk::Message id, void* p1, void* p2) { link_.send(id, p1, p2); });
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, &HostSession::tellAttached);
    connect(&link_, &PluginLink::received, this, &HostSession::receive);
}

HostSession::~HostSession() = default;

bool HostSession::start(const QString& pluginPath)
{
    if (!link_.load(pluginPath))
        return false;
    if (tracker_.attached())
        tellAttached(true);
    return true;
}

void HostSession::tellAttached(bool attached)
{
    if (attached)
        link_.attachTracker(tracker_.model(), tracker_.text1(), tracker_.text2(), tracker_.capabilityMask());
    else
        link_.send(vlk::Message::TrackerDetached);
}

bool HostSession::readConfiguration(bool full)
{
    const QString path = tracker_.readConfiguration(readFiles_.path());
    if (path.isEmpty())
        return false;
    link_.openConfiguration(path, full, false);
    QFile::remove(path);
    return true;
}

bool HostSession::liveTelemetry()
{
    const QString path = tracker_.readConfiguration(readFiles_.path());
    if (path.isEmpty())
        return false;
    link_.openTelemetry(path);
    QFile::remove(path);
    return true;
}

void HostSession::receive(vlk::Message id, void* p1, void* p2)
{
    if (id == vlk::Message::ShowHelp) {
        if (p2)
            Q_EMIT helpRequested(*static_cast<const QString*>(p2));
    } else if (id == vlk::Message::WriteConfiguration) {
        // The plug-in is in the middle of its own work here; the tracker takes the file when that is done.
        if (p1)
            QMetaObject::invokeMethod(
                this, [this, path = *static_cast<const QString*>(p1)] { handOver(path); },
                Qt::QueuedConnection);
    } else if (!tracker_.handle(id, p1, p2)) {
        qCInfo(lcSession) << "message without a receiver" << quint32(id);
    }
}

void HostSession::handOver(const QString& path)
{
    const tracker::WriteReport report = tracker_.writeConfiguration(path);
    if (report.accepted && !QFile::remove(path))
        qCWarning(lcSession) << "cannot remove" << path;
    Q_EMIT configurationWritten(report);
}
