// Refuellings and drains in files of telemetry.

#include "command/commands.h"

#include "command/configuration_input.h"
#include "command/damage_lines.h"
#include "command/each_file.h"
#include "command/file_kind.h"
#include "command/file_names.h"
#include "command/json_line.h"
#include "command/telemetry_summary.h"
#include "telemetry/files/telemetry_reader.h"
#include "telemetry/fuel/calibration.h"
#include "telemetry/fuel/fuel_events.h"
#include "telemetry/fuel/tank_levels.h"
#include "window/languages.h"

#include <QBuffer>
#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <cmath>

namespace workbench::command {

namespace {

constexpr qint64 kBeginning = 4096;

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
        if (!element.isEmpty() && sensor == nullptr)
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
        if (sensor == nullptr)
            sensor = vlk::levelSensorOfTable(table.sensor);
        if (sensor == nullptr)
            return refuse(call.tables[i], text("cli_242"));
        if (isTaken(sensor))
            return refuse(call.tables[i], text("cli_031").arg(QLatin1String(sensor->element().data())));
        const QString other = text("cli_243").arg(table.sensor, QLatin1String(sensor->element().data()));
        if (!vlk::suits(table, *sensor))
            return refuse(call.tables[i], other);
        if (vlk::isOfAnother(table, *sensor))
            outcome.complaints += complaint(call.tables[i], other);
        tanks->push_back({sensor, vlk::FuelCurve(table.rows, sensor->kind)});
    }
    return outcome;
}

Outcome eventsIn(const Call& call, const File& file, const std::vector<TankSensor>& tanks, QIODevice& device)
{
    vlk::TelemetryReader reader(device, {}, vlk::TelemetryReading::salvage);
    while (reader.step()) {
    }
    reader.finish();
    const vlk::TelemetryContents& contents = reader.contents();
    vlk::RecordColumns columns(contents.records);
    const vlk::NumberColumn litres = vlk::tankLitres(columns, tanks);
    const QString sensor = vlk::elementsOf(tanks);
    if (std::ranges::all_of(litres, [](double level) { return std::isnan(level); }))
        return refusal(call, file.name, text("cli_244").arg(sensor));
    Outcome outcome{{}, damageLines(file, contents.damages), contents.damages.empty() ? nothing : found};
    for (const FuelEvent& event : vlk::findFuelEvents(columns, litres, {call.rise, call.fall})) {
        outcome.told += eventLine(call, file, sensor, event);
        outcome.status = found;
    }
    return outcome;
}

Outcome eventsOf(const Call& call, const File& file, const std::vector<TankSensor>& tanks)
{
    QFile plain(file.name);
    QBuffer held;
    QIODevice* device = &plain;
    if (file.isStandardInput()) {
        // It cannot be read twice.
        QFile input;
        if (input.open(stdin, QIODevice::ReadOnly))
            held.setData(input.readAll());
        device = &held;
    }
    if (!device->open(QIODevice::ReadOnly))
        return refusal(call, file.name, whyUnreadable(plain));
    const QByteArray start = device->peek(kBeginning);
    if (start.isEmpty() && plain.isOpen() && plain.error() != QFileDevice::NoError)
        return refusal(call, file.name, whyUnreadable(plain));
    const FileKind kind = kindOf(start);
    if (kind == FileKind::telemetry)
        return eventsIn(call, file, tanks, *device);
    if (!file.isNamed && kind != FileKind::unknown)
        return {};
    return refusal(call, file.name, text(start.isEmpty() ? "cli_004" : "cli_245"));
}

} // namespace

int fuel(const Call& call, Output& output)
{
    std::vector<TankSensor> tanks;
    const Outcome outcome = takeTanks(call, &tanks);
    output.write(outcome.told);
    writeError(outcome.complaints);
    if (outcome.status == failed)
        return failed;
    return eachFile(
        call.files, [&](const File& file) { return eventsOf(call, file, tanks); }, output);
}

} // namespace workbench::command
