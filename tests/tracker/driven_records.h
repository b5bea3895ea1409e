#pragma once

// Records of days that the simulated vehicle drives, and what was poured into its tanks and drained from them
// meanwhile.

#include "support/files.h"
#include "telemetry/fuel/tank_levels.h"
#include "tracker/configuration_values.h"
#include "tracker/drive.h"
#include "tracker/record_bytes.h"
#include "tracker/tank.h"

#include <QTemporaryDir>

#include <cmath>
#include <map>

struct Pour
{
    qint64 from;
    qint64 until;
    double before; // litres in the tanks
    double litres; // drained below 0
    qint64 seen;   // at the latest by sensors that sleep without ignition
};

struct DrivenDays
{
    vlk::RecordStore records;
    std::vector<Pour> pours;
    std::map<qint64, tracker::EventCode> filling; // events of refuellings, by their times
};

// Sensors, once the ignition is on, and what a tracker records of them while it drives off.
inline constexpr qint64 kWakesWithin = 600;

// A Monday.
inline constexpr qint64 kFirstMidnight = 1779667200;

// `document`: the configuration by which the tracker records.
inline DrivenDays drivenDays(quint64 seed, int days, const QByteArray& document)
{
    const qint64 midnight = kFirstMidnight + static_cast<qint64>(seed % 7) * tracker::kDaySeconds;
    const tracker::ConfigurationValues values(document);
    const QTemporaryDir folder;
    const tracker::SettingsHistory settings(folder.path(), tracker::WorkingSettings::of(values));
    tracker::Drive drive(seed, midnight, settings);
    tracker::DataSet dataSet;
    dataSet.mask = vlk::FieldMask::fromText(values.text(QStringLiteral("PROTOCOL/ZETA/mask")).toStdString());
    DrivenDays driven;
    const quint32 last = drive.lastBefore(midnight + static_cast<qint64>(days) * tracker::kDaySeconds - 1);
    for (quint32 number = 0; number <= last; ++number) {
        const tracker::Moment moment = drive.record(number);
        if (moment.kind != tracker::RecordKind::Telemetry)
            continue;
        using enum tracker::EventCode;
        const auto code = static_cast<tracker::EventCode>(moment.code);
        if (code == FillingStart || code == FillingEnd)
            driven.filling[moment.time] = code;
        const QByteArray bytes = recordBytes(tracker::Vehicle(moment, {}), dataSet);
        driven.records.add({reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                            static_cast<std::size_t>(bytes.size())});
    }
    tracker::Odometers at;
    for (int day = 0; day < days; ++day) {
        const tracker::DayPlan plan =
            tracker::planDay(seed, midnight + static_cast<qint64>(day) * tracker::kDaySeconds, at);
        for (const tracker::Segment& segment : plan.segments) {
            using enum tracker::Activity;
            if (segment.activity == Filling || segment.activity == Draining)
                driven.pours.push_back(
                    {segment.from, segment.from + segment.seconds, segment.at.fuel, segment.fuelDelta, 0});
            for (Pour& pour : driven.pours) {
                if (pour.seen == 0 && segment.activity == Idling)
                    pour.seen = segment.from + kWakesWithin;
            }
        }
        at = plan.end;
    }
    return driven;
}

// As somebody would calibrate the tank, ten litres at a time; or a tank so many times as large.
inline vlk::FuelRows calibrationOf(const tracker::Tank& tank, double times = 1)
{
    vlk::FuelRows rows;
    for (int litres = 0; litres <= tank.litres; litres += 10)
        rows.push_back(
            {QString::number(litres * times),
             QString::number(std::round(tracker::sensorValue(tank, tracker::fuelHeight(tank, litres))))});
    return rows;
}

inline std::vector<vlk::TankSensor> tanksOf(std::initializer_list<tracker::Tank> tanks, double times = 1)
{
    std::vector<vlk::TankSensor> sensors;
    for (const tracker::Tank& tank : tanks)
        sensors.push_back({vlk::levelSensorOfTable(QLatin1String(tank.sensor)),
                           vlk::FuelCurve(calibrationOf(tank, times), vlk::LevelKind::Code)});
    return sensors;
}

// Both tanks of the vehicle.
inline std::vector<vlk::TankSensor> bothTanks(double times = 1)
{
    return tanksOf({tracker::kTanks[1], tracker::kTanks[2]}, times);
}

// The tank that is drawn on once the other one is empty.
inline std::vector<vlk::TankSensor> lastTank(double times = 1)
{
    return tanksOf({tracker::kTanks[1]}, times);
}
