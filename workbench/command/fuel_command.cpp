// Refuellings and drains in files of telemetry.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/damage_lines.h"
#include "command/each_file.h"
#include "command/file_kind.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "command/record_key.h"
#include "telemetry/files/binary_layout.h"
#include "telemetry/files/identity_text.h"
#include "telemetry/files/telemetry_reader.h"
#include "telemetry/files/vehicle_times.h"
#include "telemetry/fuel/calibration.h"
#include "telemetry/fuel/fuel_events.h"
#include "telemetry/fuel/level_noise.h"
#include "telemetry/fuel/tank_levels.h"
#include "telemetry/record/record_head.h"
#include "window/languages.h"

#include <QBuffer>
#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace workbench::command {

namespace {

using vlk::FuelEvent;
using vlk::TankSensor;

QString isoTime(quint32 time)
{
    return QDateTime::fromSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODate);
}

QString fixedNumber(double number, int decimals)
{
    return QString::number(number, 'f', decimals);
}

QByteArray jsonNumber(double number, int decimals)
{
    return std::isnan(number) ? QByteArrayLiteral("null") : fixedNumber(number, decimals).toLatin1();
}

QByteArray eventLine(const Call& call, const File& file, const QString& sensor, const FuelEvent& event)
{
    constexpr int degreeDecimals = 7;
    if (call.json)
        return JsonLine()
            .add("file", readable(file.name))
            .add("kind", event.isRefuelling() ? QStringLiteral("refuelling") : QStringLiteral("drain"))
            .add("time", isoTime(event.time))
            .add("until", isoTime(event.until))
            .addRaw("before", jsonNumber(event.before, 1))
            .addRaw("after", jsonNumber(event.after, 1))
            .addRaw("litres", jsonNumber(event.litres(), 1))
            .addRaw("latitude", jsonNumber(event.latitude, degreeDecimals))
            .addRaw("longitude", jsonNumber(event.longitude, degreeDecimals))
            .add("sensor", sensor)
            .line();
    QString told = text("cli_236").arg(
        isoTime(event.time), isoTime(event.until), text(event.isRefuelling() ? "cli_237" : "cli_238"),
        (event.isRefuelling() ? QStringLiteral("+") : QString()) + fixedNumber(event.litres(), 1),
        fixedNumber(event.before, 1), fixedNumber(event.after, 1));
    if (!std::isnan(event.latitude))
        told += QStringLiteral(", %1 %2").arg(fixedNumber(event.latitude, degreeDecimals),
                                              fixedNumber(event.longitude, degreeDecimals));
    return complaint(file.name, told + QStringLiteral(", ") + sensor);
}

// " (week.xml: LevelRS485_1, LevelRS485_2)": what the first file of telemetry can be asked for; empty where
// it cannot be told.
QString sensorsToChoose(const Call& call)
{
    constexpr int mostRecords = 50'000;
    FileWalk walk(call.files);
    while (const std::optional<File> file = walk.next()) {
        QFile device(file->name);
        if (file->isStandardInput() || !device.open(QIODevice::ReadOnly) ||
            kindOf(device, file->name) != FileKind::Telemetry)
            continue;
        vlk::TelemetryReader reader(device, file->name, vlk::TelemetryReading::Salvage);
        while (reader.contents().records.size() < mostRecords && reader.step())
            ;
        vlk::RecordColumns columns(reader.contents().records);
        QStringList elements;
        for (const vlk::LevelSensor* sensor : vlk::sensorsIn(columns))
            elements << QString::fromStdString(std::string(sensor->element()));
        return elements.isEmpty() ? QString()
                                  : QStringLiteral(" (%1: %2)")
                                        .arg(readable(file->name), elements.join(QLatin1String(", ")));
    }
    return {};
}

// The sensors of the call with their tables; an outcome with failed where they do not go together.
Outcome takeTanks(const Call& call, std::vector<TankSensor>* tanks)
{
    Outcome outcome;
    const auto refuse = [&](const QString& name, const QString& reason) {
        outcome = refusal(call, name, reason);
        return outcome;
    };
    // The litres of one that stands twice would count twice.
    const auto isTaken = [&](const vlk::LevelSensor* sensor) {
        return std::ranges::find(*tanks, sensor, &TankSensor::sensor) != tanks->end();
    };
    if (call.tables.isEmpty() && call.sensors.isEmpty())
        return refuse(QStringLiteral("--table"), text("cli_239"));
    if (!call.tables.isEmpty() && !call.sensors.isEmpty() && call.tables.size() != call.sensors.size())
        return refuse(QStringLiteral("--sensor"), text("cli_240"));
    for (int i = 0; i < std::max(call.tables.size(), call.sensors.size()); ++i) {
        const QString element = call.sensors.value(i);
        const vlk::LevelSensor* sensor = vlk::levelSensorOfElement(element);
        if (!element.isEmpty() && !sensor)
            return refuse(element, text("cli_241"));
        if (call.tables.isEmpty()) {
            if (isTaken(sensor))
                return refuse(QStringLiteral("--sensor"), text("cli_031").arg(element));
            if (sensor->kind != vlk::LevelKind::Can)
                return refuse(element, text("cli_239"));
            tanks->push_back({sensor, {}});
            continue;
        }
        if (QFile file(call.tables[i]); !file.open(QIODevice::ReadOnly))
            return refuse(call.tables[i], whyUnreadable(file));
        const auto read = vlk::readCalibration(call.tables[i]);
        if (const auto* fault = std::get_if<vlk::TableFault>(&read))
            return refuse(call.tables[i], text(vlk::faultKey(*fault)));
        const auto& table = std::get<vlk::Calibration>(read);
        if (!sensor)
            sensor = vlk::levelSensorOfTable(table.sensor);
        if (!sensor)
            return refuse(call.tables[i], text("cli_242") + sensorsToChoose(call));
        if (isTaken(sensor))
            return refuse(call.tables[i], text("cli_031").arg(QLatin1String(sensor->element().data())));
        const QString field = QLatin1String(sensor->element().data());
        if (!vlk::suits(table, *sensor))
            return refuse(call.tables[i], text("cli_243").arg(table.sensor, field));
        if (vlk::isOfAnother(table, *sensor))
            outcome.complaints += complaint(call.tables[i], text("cli_302").arg(table.sensor, field));
        tanks->push_back({sensor, vlk::FuelCurve(table.rows, sensor->kind)});
    }
    return outcome;
}

// Files whose records are judged together.
using Vehicle = std::vector<File>;

std::optional<QByteArray> identityOf(const File& file)
{
    QFile device(file.name);
    if (file.isStandardInput() || !device.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray header = device.read(vlk::binary::kHeaderBytes);
    const QByteArray identity = vlk::identityIn(vlk::bytesAt(header.constData(), header.size()));
    return identity.isEmpty() ? std::nullopt : std::optional(identity);
}

// Files that tell the same identity are of one vehicle, those that tell none are each of their own.
std::vector<Vehicle> vehiclesOf(FileWalk& walk, bool isOne)
{
    std::vector<Vehicle> vehicles;
    std::map<QByteArray, std::size_t> known;
    while (const std::optional<File> file = walk.next()) {
        const std::optional<QByteArray> identity = isOne ? QByteArray() : identityOf(*file);
        const auto place = identity ? known.find(*identity) : known.end();
        if (place != known.end()) {
            vehicles[place->second].push_back(*file);
            continue;
        }
        if (identity)
            known.emplace(*identity, vehicles.size());
        vehicles.push_back({*file});
    }
    return vehicles;
}

class FuelSearch
{
public:
    FuelSearch(const Call& call, const std::vector<TankSensor>& tanks, FolderTally& folders)
        : call_(call), tanks_(tanks), folders_(folders)
    {
    }

    Outcome eventsOf(const Vehicle& files)
    {
        for (const File& file : files)
            read(file, files.size() > 1);
        vlk::RecordColumns columns(records_);
        const vlk::NumberColumn litres = vlk::tankLitres(columns, tanks_);
        const QString sensor = vlk::elementsOf(tanks_);
        refuseWithoutLevels(columns, litres, sensor);
        warnOfEnds(files.front(), columns);
        warnOfTimes(columns);
        const std::vector<vlk::LevelMedian> medians = vlk::levelMedians(columns, litres);
        warnOfNoise(files.front(), vlk::levelNoise(medians));
        for (const FuelEvent& event :
             vlk::findFuelEvents(columns, litres, medians, {call_.rise, call_.fall})) {
            outcome_.told += eventLine(call_, partOf(event.record).file, sensor, event);
            outcome_.status = std::max<int>(outcome_.status, Found);
        }
        return std::move(outcome_);
    }

private:
    // The records of a file, without those that others had before.
    struct Part
    {
        File file;
        int begin;
        int end;
        bool hadRecords;
    };

    const Part& partOf(int record) const
    {
        return *std::ranges::find_if(parts_, [record](const Part& part) { return record < part.end; });
    }

    void refuse(const File& file, const QString& reason)
    {
        folders_.found(file);
        const Outcome refused = refusal(call_, file.name, reason);
        outcome_.told += refused.told;
        outcome_.complaints += refused.complaints;
        outcome_.status = Failed;
    }

    void read(const File& file, bool isOneOfSeveral)
    {
        QFile plain(file.name);
        QBuffer held;
        QIODevice* device = &plain;
        if (file.isStandardInput()) {
            // It cannot be read twice.
            QFile input;
            if (input.open(stdin, QIODevice::ReadOnly))
                held.setData(input.readAll());
            if (input.error() != QFileDevice::NoError)
                return refuse(file, whyUnreadable(input));
            device = &held;
        }
        if (!device->open(QIODevice::ReadOnly))
            return refuse(file, whyUnreadable(plain));
        const QByteArray start = device->peek(kBeginning);
        if (start.isEmpty() && plain.isOpen() && plain.error() != QFileDevice::NoError)
            return refuse(file, whyUnreadable(plain));
        const FileKind kind = kindOf(*device, file.name);
        if (kind == FileKind::Telemetry)
            return readRecords(file, *device, isOneOfSeveral);
        if (file.isNamed || kind == FileKind::Unknown)
            refuse(file, text(isBlank(start) ? "cli_004" : "cli_245"));
    }

    void readRecords(const File& file, QIODevice& device, bool isOneOfSeveral)
    {
        folders_.found(file);
        vlk::TelemetryReader reader(device, file.name, vlk::TelemetryReading::Salvage);
        Part part{file, records_.size(), 0, false};
        for (bool isMore = true; isMore;) {
            isMore = reader.step();
            vlk::RecordStore& ahead = reader.contents().records;
            if (isMore && ahead.size() < kRecordsAhead)
                continue;
            part.hadRecords = part.hadRecords || !ahead.empty();
            for (int record = 0; record < ahead.size(); ++record) {
                if (!isOneOfSeveral || seen_.insert(keyOf(ahead, record)).second)
                    records_.add(ahead.layout(record), ahead.bytes(record));
            }
            ahead.clear();
        }
        reader.finish();
        for (const vlk::FileDamage& damage : reader.contents().damages) {
            outcome_.complaints += damageLine(file, damage, device.size());
            outcome_.status = std::max<int>(outcome_.status, Found);
        }
        part.end = records_.size();
        parts_.push_back(std::move(part));
    }

    void warnOfTimes(vlk::RecordColumns& columns)
    {
        std::vector<int> strayed;
        vlk::recordsByTime(columns, &strayed);
        for (const Part& part : parts_) {
            const auto count = std::ranges::count_if(
                strayed, [&part](int record) { return record >= part.begin && record < part.end; });
            if (count > 0)
                outcome_.complaints += complaint(part.file.name, text("rec_603").arg(count));
        }
    }

    // Warns of thresholds below the noise of the level.
    void warnOfNoise(const File& file, double noise)
    {
        for (const auto& [option, litres] :
             {std::pair("--rise", call_.rise), std::pair("--fall", call_.fall)}) {
            if (litres < noise)
                outcome_.complaints +=
                    complaint(file.name, text("cli_310").arg(QLatin1String(option), fixedNumber(litres, 1),
                                                             fixedNumber(noise, 1)));
        }
    }

    void warnOfEnds(const File& file, vlk::RecordColumns& columns)
    {
        for (const TankSensor& tank : tanks_) {
            const vlk::ReadingsBeyond readings = vlk::readingsBeyond(columns, tank);
            if (readings.beyond > 0)
                outcome_.complaints +=
                    complaint(file.name, text("cli_311")
                                             .arg(readings.beyond)
                                             .arg(readings.all)
                                             .arg(QLatin1String(tank.sensor->element().data())));
            for (const vlk::FuelCurve::Blind& blind : tank.blinds())
                outcome_.complaints += complaint(
                    file.name, text("cli_345").arg(fixedNumber(blind.least, 1), fixedNumber(blind.most, 1),
                                                   fixedNumber(blind.level, 1),
                                                   QLatin1String(tank.sensor->element().data())));
        }
    }

    // Whether a sensor tells numbers there, be they errors by its table.
    bool saysAnything(vlk::RecordColumns& columns, const Part& part) const
    {
        return std::ranges::any_of(tanks_, [&](const TankSensor& tank) {
            const auto levels = std::span(vlk::sensorLevels(columns, *tank.sensor))
                                    .subspan(part.begin, part.end - part.begin);
            return tank.curve && std::ranges::any_of(levels, [](double level) { return level > 0; });
        });
    }

    void refuseWithoutLevels(vlk::RecordColumns& columns, const vlk::NumberColumn& litres,
                             const QString& sensor)
    {
        for (const Part& part : parts_) {
            const auto levels = std::span(litres).subspan(part.begin, part.end - part.begin);
            const bool isKnown = part.hadRecords && levels.empty();
            if (!isKnown && std::ranges::all_of(levels, [](double level) { return std::isnan(level); }))
                refuse(part.file, text(saysAnything(columns, part) ? "cli_312" : "cli_244").arg(sensor));
        }
    }

    static constexpr int kRecordsAhead = 1000;

    const Call& call_;
    const std::vector<TankSensor>& tanks_;
    FolderTally& folders_;
    Outcome outcome_;
    vlk::RecordStore records_;
    std::set<RecordKey> seen_; // of several files
    std::vector<Part> parts_;
};

} // namespace

int fuel(const Call& call, Output& output)
{
    std::vector<TankSensor> tanks;
    const Outcome outcome = takeTanks(call, &tanks);
    output.write(outcome.told);
    writeError(outcome.complaints);
    if (outcome.status == Failed)
        return Failed;
    FileWalk walk(call.files);
    const std::vector<Vehicle> vehicles = vehiclesOf(walk, call.isOneVehicle);
    FolderTally folders;
    const int status = workInTurn<Vehicle>(
        [&, at = std::size_t{0}]() mutable {
            return at < vehicles.size() ? std::optional(vehicles[at++]) : std::nullopt;
        },
        [&](const Vehicle& files) { return FuelSearch(call, tanks, folders).eventsOf(files); }, output);
    return std::max(status, folders.tell(walk, "cli_295"));
}

} // namespace workbench::command
