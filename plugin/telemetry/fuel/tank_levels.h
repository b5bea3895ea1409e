#pragma once

// The levels of one or several sensors in litres. Tanks that are joined are added up.

#include "telemetry/files/record_columns.h"
#include "telemetry/fuel/fuel_curve.h"

namespace vlk {

struct TankSensor
{
    const LevelSensor* sensor;
    std::optional<FuelCurve> curve; // without it litres come from the CAN bus alone

    std::vector<FuelCurve::Blind> blinds() const
    {
        return curve ? curve->blinds() : std::vector<FuelCurve::Blind>();
    }
};

// What the sensor says, in the unit of its table; NaN where it says nothing.
const NumberColumn& sensorLevels(RecordColumns& columns, const LevelSensor& sensor);
// NaN where one of the sensors gives no level.
NumberColumn tankLitres(RecordColumns& columns, const std::vector<TankSensor>& tanks);
// Beyond the ends of its table a tank has the volume of the end, whatever becomes of the level.
struct ReadingsBeyond
{
    int beyond = 0;
    int all = 0;
};
ReadingsBeyond readingsBeyond(RecordColumns& columns, const TankSensor& tank);
// "LevelRS485_1+LevelRS485_2".
QString elementsOf(const std::vector<TankSensor>& tanks);

// The sensors that say anything in these records.
std::vector<const LevelSensor*> sensorsIn(RecordColumns& columns);

} // namespace vlk
