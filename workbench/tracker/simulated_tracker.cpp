#include "tracker/simulated_tracker.h"

#include "tracker/answer_line.h"
#include "tracker/bluetooth_search.h"
#include "tracker/configuration_store.h"
#include "tracker/live_requests.h"
#include "tracker/record_requests.h"
#include "tracker/tachograph.h"
#include "tracker/vehicle_fuel.h"
#include "tracker/vehicle_power.h"

#include <algorithm>

namespace tracker {

namespace {

using vlk::Message;

constexpr quint64 kBluetoothCapability = 0x800;

// The number that answers a request by the table of messages.
Message answerTo(Message request)
{
    const auto found = std::ranges::find_if(
        vlk::kMessages, [request](const vlk::MessageInfo& info) { return info.number == request; });
    return found == std::end(vlk::kMessages) ? Message{} : static_cast<Message>(found->answer);
}

bool isAddress(const QString& address)
{
    return !address.isEmpty() && address != QLatin1String("0.0.0.0");
}

} // namespace

struct SimulatedTracker::Parts
{
    Parts(const QString& folder, Clock clockOrNone)
        : clock(clockOrNone ? std::move(clockOrNone) : Clock(&QDateTime::currentDateTimeUtc)), store(folder),
          settings(folder, WorkingSettings::of(store.values())), memory(folder, now()),
          archive(memory, settings), records(archive, memory, [this] { return present(); }),
          live(memory, [this] { return vehicle(); }), tachograph([this] { return vehicle(); })
    {
        records.addTo(handlers);
        live.addTo(handlers);
        tachograph.addTo(handlers);
        handlers[Message::StartBtSearch] = [this](void*) { return searchBluetooth(hasBluetooth()); };
        handlers[Message::CancelBtSearch] = [this](void*) {
            line.dropSearch();
            return stopBluetoothSearch();
        };
    }

    qint64 now() const { return clock().toSecsSinceEpoch(); }

    Vehicle vehicle() { return {archive.moment(now()), memory.controlsAt(now())}; }

    DataSet dataSet() const
    {
        const ConfigurationValues& values = store.values();
        const QString format = values.text(QStringLiteral("PROTOCOL/ZETA/format"), QStringLiteral("10"));
        DataSet result;
        if (protocol != Protocol::AsConfigured)
            result.version = static_cast<int>(protocol);
        else if (format == QLatin1String("10") || format == QLatin1String("20"))
            result.version = format.toInt();
        const std::string mask = values.text(QStringLiteral("PROTOCOL/ZETA/mask")).toStdString();
        if (full)
            result.mask = vlk::FieldMask::fromText(std::string(vlk::kFieldCount, '1'));
        else
            result.mask = vlk::FieldMask::fromText(mask.empty() ? vlk::kDefaultMaskText : mask);
        result.ofBadBoard = line.faults().badBoard;
        result.links = links();
        return result;
    }

    bool hasBluetooth() const
    {
        return !line.faults().noBluetooth &&
               store.values().number(QStringLiteral("BLUETOOTH/GLOBAL/use"), 1) != 0;
    }

    // A server without an address cannot be connected.
    Links links() const
    {
        Links links;
        links.usbSince = line.plugged() ? attachedSince : kNoTime;
        for (std::size_t i = 0; i < links.servers.size(); ++i) {
            const QString address = store.values().text(QStringLiteral("TRANS/SRV%1/addr").arg(i + 1));
            links.servers[i] = isAddress(address);
        }
        const ConfigurationValues& values = store.values();
        if (values.number(QStringLiteral("TRANS/RULES/cnctType"), 1) == 0)
            links.connectsEvery = values.number(QStringLiteral("TRANS/RULES/cnctTimer"), 3600);
        links.service = values.number(QStringLiteral("TRANS/QSP/use"), 1) != 0;
        links.bluetooth = hasBluetooth();
        return links;
    }

    RecordRequests::Present present() const { return {now(), dataSet()}; }

    WriteReport write(const QByteArray& document)
    {
        WriteReport refused;
        if (!line.plugged())
            refused.reasonKey = QStringLiteral("wb_refused_detached");
        else if (line.faults().unplug)
            refused.reasonKey = QStringLiteral("wb_refused_unplugged");
        else if (line.faults().silence)
            refused.reasonKey = QStringLiteral("wb_refused_silence");
        else
            return take(document);
        return refused;
    }

    WriteReport take(const QByteArray& document)
    {
        store.setSkipsPage(line.faults().skipsPage);
        WriteReport report = store.write(document);
        if (report.accepted && settings.change(now(), WorkingSettings::of(store.values())))
            archive.settingsChanged(now());
        return report;
    }

    Clock clock;
    ConfigurationStore store;
    SettingsHistory settings;
    TrackerMemory memory;
    RecordArchive archive;
    RecordRequests records;
    LiveRequests live;
    Tachograph tachograph;
    Handlers handlers;
    AnswerLine line;
    qint64 attachedSince = kNoTime;
    Protocol protocol = Protocol::AsConfigured;
    bool full = false;
};

SimulatedTracker::SimulatedTracker(const QString& storeFolder, QObject* parent, Clock clock)
    : QObject(parent), parts_(std::make_unique<Parts>(storeFolder, std::move(clock)))
{
    connect(&parts_->line, &AnswerLine::pulled, this, &SimulatedTracker::pulled);
    connect(&parts_->line, &AnswerLine::pulled, this, &SimulatedTracker::detach);
    connect(&parts_->line, &AnswerLine::faultsChanged, this, &SimulatedTracker::faultsChanged);
}

SimulatedTracker::~SimulatedTracker() = default;

void SimulatedTracker::setSender(Sender sender)
{
    parts_->line.setSender(std::move(sender));
}

void SimulatedTracker::setClock(Clock clock)
{
    parts_->clock = std::move(clock);
}

bool SimulatedTracker::handle(vlk::Message id, void* p1, void* p2, quint32 ticket)
{
    if (id == Message::RequestEventText) {
        if (p2)
            *static_cast<QString*>(p2) = eventText(static_cast<quint16>(plainValue(p1)));
        return true;
    }
    const auto handler = parts_->handlers.find(id);
    if (handler == parts_->handlers.end())
        return false;
    if (!attached())
        return true;
    for (Answer& answer : handler->second(p1)) {
        if (answer.message == Message{})
            answer.message = answerTo(id);
        answer.ticket = ticket;
        parts_->line.post(answer);
    }
    return true;
}

quint32 SimulatedTracker::ticket() const
{
    return parts_->line.ticket();
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
    return faults().noBluetooth ? 0 : kBluetoothCapability;
}

bool SimulatedTracker::attached() const
{
    return parts_->line.plugged();
}

void SimulatedTracker::attach()
{
    if (attached())
        return;
    parts_->line.plug();
    parts_->attachedSince = parts_->now();
    Q_EMIT attachedChanged(true);
}

void SimulatedTracker::detach()
{
    if (!attached())
        return;
    parts_->line.unplug();
    Q_EMIT attachedChanged(false);
}

std::optional<Present> SimulatedTracker::readPresent()
{
    if (!attached())
        return {};
    if (parts_->line.takeUnplug()) {
        Q_EMIT pulled();
        detach();
        return {};
    }
    if (faults().silence || faults().shortAnswers || faults().garbledAnswers)
        return {};
    const Vehicle vehicle = parts_->vehicle();
    return Present{vehicle.mileage(), vehicle.m.speed, vehicle.running(), vehicle.c.outputs};
}

QString SimulatedTracker::vehicleName() const
{
    return configuration().text(QStringLiteral("TRANS/OBJECT/name"));
}

Reading SimulatedTracker::readConfiguration()
{
    return read(parts_->store.document());
}

Reading SimulatedTracker::readPrevious()
{
    return read(parts_->store.previous());
}

Reading SimulatedTracker::read(const QByteArray& document)
{
    AnswerLine& line = parts_->line;
    if (!attached())
        return {Reading::Outcome::Detached, {}};
    if (line.takeUnplug()) {
        detach();
        return {Reading::Outcome::Unplugged, {}};
    }
    if (line.faults().silence)
        return {Reading::Outcome::Silent, {}};
    return {Reading::Outcome::Came, line.distorted(document)};
}

const ConfigurationValues& SimulatedTracker::configuration() const
{
    return parts_->store.values();
}

QString SimulatedTracker::serverAddress(int server) const
{
    const QString section = QStringLiteral("TRANS/SRV%1/").arg(server);
    const QString address = configuration().text(section + QStringLiteral("addr"));
    const QString port = configuration().text(section + QStringLiteral("port"));
    if (!isAddress(address))
        return {};
    return port.isEmpty() ? address : address + QLatin1Char(':') + port;
}

SimulatedTracker::Block SimulatedTracker::takeBlock()
{
    if (!attached())
        return Block::Gone;
    if (parts_->line.takeUnplug()) {
        detach();
        return Block::Gone;
    }
    return faults().silence ? Block::Silent : Block::Kept;
}

WriteReport SimulatedTracker::takeConfiguration(const QByteArray& document)
{
    Faults rest = faults();
    if (std::exchange(rest.powerLoss, false) && attached()) {
        parts_->line.setFaults(rest);
        parts_->store.losePower(document);
        detach();
        WriteReport report;
        report.reasonKey = QStringLiteral("wb_refused_unplugged");
        return report;
    }
    WriteReport report = parts_->write(document);
    if (report.accepted && !report.sameAsBefore)
        parts_->memory.change(parts_->now(), EventCode::ConfigurationChanged);
    if (parts_->line.takeUnplug())
        detach();
    Q_EMIT configurationWritten();
    return report;
}

const Faults& SimulatedTracker::faults() const
{
    return parts_->line.faults();
}

void SimulatedTracker::setFaults(const Faults& faults)
{
    const bool isOther = faults.noBluetooth != this->faults().noBluetooth;
    parts_->line.setFaults(faults);
    // What a tracker can do it tells when it is attached.
    if (isOther && attached()) {
        detach();
        attach();
    }
}

Protocol SimulatedTracker::protocol() const
{
    return parts_->protocol;
}

void SimulatedTracker::setProtocol(Protocol protocol)
{
    parts_->protocol = protocol;
}

bool SimulatedTracker::fullDataSet() const
{
    return parts_->full;
}

void SimulatedTracker::setFullDataSet(bool full)
{
    parts_->full = full;
}

double SimulatedTracker::fuelIn(std::size_t tank) const
{
    const std::optional<double> poured = parts_->memory.pours().litresAt(parts_->now())[tank];
    return poured ? *poured : fuelLeft(parts_->vehicle(), tank);
}

double SimulatedTracker::fuelReading(std::size_t tank) const
{
    const Vehicle vehicle = parts_->vehicle();
    constexpr int analogueLine = 2;
    return tank == 0 ? lineVoltage(vehicle, analogueLine) : fuelSensor(vehicle, static_cast<int>(tank) - 1);
}

void SimulatedTracker::pour(std::size_t tank, double litres)
{
    const double before = fuelIn(tank);
    parts_->memory.pours().set(tank, parts_->now(), before,
                               std::clamp(before + litres, 0.0, kTanks[tank].litres));
}

} // namespace tracker
