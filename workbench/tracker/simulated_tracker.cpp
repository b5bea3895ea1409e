#include "tracker/simulated_tracker.h"

#include "tracker/configuration_store.h"

#include <QDateTime>
#include <QDir>
#include <QTimer>

namespace tracker {

struct SimulatedTracker::Parts
{
    explicit Parts(const QString& folder) : store(folder) {}

    ConfigurationStore store;
    Faults faults;
    Protocol protocol = Protocol::Protocol3;
    Sender sender;
    // The cable: what is under way hangs on it and goes with it.
    std::unique_ptr<QObject> cable;
};

SimulatedTracker::SimulatedTracker(const QString& storeFolder, QObject* parent)
    : QObject(parent), parts_(std::make_unique<Parts>(storeFolder))
{
    qRegisterMetaType<tracker::WriteReport>();
}

SimulatedTracker::~SimulatedTracker() = default;

void SimulatedTracker::setSender(Sender sender)
{
    parts_->sender = std::move(sender);
}

bool SimulatedTracker::handle(vlk::Message id, void* p1, void* /*p2*/)
{
    if (id != vlk::Message::WriteConfiguration || !p1)
        return false;
    if (attached())
        writeConfiguration(*static_cast<const QString*>(p1));
    return true;
}

QString SimulatedTracker::model() const
{
    return QStringLiteral("R-7106");
}

QString SimulatedTracker::text1() const
{
    return QStringLiteral("R-7106 v3.3.0");
}

QString SimulatedTracker::text2() const
{
    return QStringLiteral("860000000071060");
}

quint64 SimulatedTracker::capabilityMask() const
{
    return 0xFFFFFFFFFFFFFFFF;
}

bool SimulatedTracker::attached() const
{
    return parts_->cable != nullptr;
}

void SimulatedTracker::attach()
{
    if (attached())
        return;
    parts_->cable = std::make_unique<QObject>();
    Q_EMIT attachedChanged(true);
}

void SimulatedTracker::detach()
{
    if (!attached())
        return;
    parts_->cable.reset();
    Q_EMIT attachedChanged(false);
}

QString SimulatedTracker::readConfiguration(const QString& folder)
{
    if (!attached() || !QDir().mkpath(folder))
        return {};
    const QString path = QDir(folder).filePath(QStringLiteral("tracker.xml"));
    return parts_->store.copyTo(path) ? path : QString();
}

WriteReport SimulatedTracker::writeConfiguration(const QString& path)
{
    const WriteReport report = parts_->store.write(path);
    Q_EMIT configurationWritten(report);
    return report;
}

Faults& SimulatedTracker::faults()
{
    return parts_->faults;
}

Protocol SimulatedTracker::protocol() const
{
    return parts_->protocol;
}

void SimulatedTracker::setProtocol(Protocol protocol)
{
    parts_->protocol = protocol;
}

} // namespace tracker
