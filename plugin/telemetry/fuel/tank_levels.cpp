#include "telemetry/fuel/tank_levels.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlk {

namespace {

// From the CAN bus, without a table; null for none.
const NumberColumn* ownLitres(RecordColumns& columns, const TankSensor& tank)
{
    return tank.sensor->kind == LevelKind::Can ? &columns.numbers(tank.sensor->litres) : nullptr;
}

double tankLitresOf(const TankSensor& tank, double level)
{
    return tank.curve ? tank.curve->litres(level) : std::numeric_limits<double>::quiet_NaN();
}

bool isAnythingSaid(RecordColumns& columns, ItemIndex item)
{
    return columns.areAny(item) &&
           std::ranges::any_of(columns.numbers(item), [](double number) { return number > 0; });
}

} // namespace

const NumberColumn& sensorLevels(RecordColumns& columns, const LevelSensor& sensor)
{
    return columns.numbers(sensor.item);
}

NumberColumn tankLitres(RecordColumns& columns, const std::vector<TankSensor>& tanks)
{
    NumberColumn sum(columns.store().size(), tanks.empty() ? std::numeric_limits<double>::quiet_NaN() : 0);
    for (const TankSensor& tank : tanks) {
        const NumberColumn& levels = sensorLevels(columns, *tank.sensor);
        const NumberColumn* const litres = ownLitres(columns, tank);
        for (std::size_t i = 0; i < sum.size(); ++i)
            sum[i] += litres && !std::isnan((*litres)[i]) ? (*litres)[i] : tankLitresOf(tank, levels[i]);
    }
    return sum;
}

ReadingsBeyond readingsBeyond(RecordColumns& columns, const TankSensor& tank)
{
    using Place = FuelCurve::Place;
    ReadingsBeyond readings;
    if (!tank.curve)
        return readings;
    const NumberColumn& levels = sensorLevels(columns, *tank.sensor);
    const NumberColumn* const litres = ownLitres(columns, tank);
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const Place place = tank.curve->read(levels[i]).place;
        if (place == Place::NoLevel || (litres && !std::isnan((*litres)[i])))
            continue;
        ++readings.all;
        readings.beyond += place != Place::Within;
    }
    return readings;
}

QString elementsOf(const std::vector<TankSensor>& tanks)
{
    QStringList elements;
    for (const TankSensor& tank : tanks)
        elements << QString::fromStdString(std::string(tank.sensor->element()));
    return elements.join(QLatin1Char('+'));
}

std::vector<const LevelSensor*> sensorsIn(RecordColumns& columns)
{
    std::vector<const LevelSensor*> sensors;
    for (const LevelSensor& sensor : kLevelSensors) {
        if (isAnythingSaid(columns, sensor.item) ||
            (sensor.kind == LevelKind::Can && isAnythingSaid(columns, sensor.litres)))
            sensors.push_back(&sensor);
    }
    return sensors;
}

} // namespace vlk
