#include "telemetry/fuel/level_sensors.h"

#include "telemetry/files/csv_columns.h"

#include <algorithm>

namespace vlk {

namespace {

template <class IsIt>
const LevelSensor* firstSensor(IsIt isIt)
{
    const auto* found = std::ranges::find_if(kLevelSensors, isIt);
    return found == kLevelSensors.end() ? nullptr : found;
}

} // namespace

QString LevelSensor::tableName() const
{
    if (letter == 0)
        return {};
    const QString name(QLatin1Char{letter});
    return number == 0 ? name : name + QString::number(number);
}

const LevelSensor* levelSensorOfElement(const QString& element)
{
    return firstSensor(
        [name = element.toStdString()](const LevelSensor& sensor) { return sensor.element() == name; });
}

const LevelSensor* levelSensorOfTable(const QString& tableName)
{
    return firstSensor([&tableName](const LevelSensor& sensor) {
        return sensor.letter != 0 && sensor.tableName() == tableName;
    });
}

QString levelSensorCaption(const LevelSensor& sensor)
{
    const auto columns = csvColumns();
    const auto column = std::ranges::find_if(columns, [&sensor](const CsvColumn& row) {
        return kItems[row.item].element == kItems[sensor.item].element;
    });
    return column == columns.end() ? QString::fromStdString(std::string(sensor.element()))
                                   : headingText(*column);
}

} // namespace vlk
