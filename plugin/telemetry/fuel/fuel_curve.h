#pragma once

// A calibration table as a curve: straight between its points; beyond them the litres of its ends hold. Where
// several volumes share a level within the table the middle of them is taken, so that a level that stays
// about there is no rise and no fall.

#include "fuel/table/fuel_rows.h"
#include "telemetry/fuel/level_sensors.h"

namespace vlk {

// Why a table makes no curve.
enum class TableFault : std::uint8_t { Unreadable, NoPoints, OnePoint, NoNumber, FallsBack, NoOrder };

// What the user reads of it.
const char* faultKey(TableFault fault);

class FuelCurve
{
public:
    // Where on the table a level lies.
    enum Place : std::uint8_t { Within, Below, Above, NoLevel };

    struct Reading
    {
        double litres; // NaN where there is no level
        Place place;
    };

    // Volumes within the table that the sensor does not tell apart.
    struct Blind
    {
        double level;
        double least; // litres
        double most;
    };

    static std::optional<TableFault> faultOf(const FuelRows& rows);
    // Takes a table without a fault.
    FuelCurve(const FuelRows& rows, LevelKind kind);

    Reading read(double level) const;
    double litres(double level) const { return read(level).litres; }
    double leastLevel() const { return points_.front().level; }
    double greatestLevel() const { return points_.back().level; }
    double leastLitres() const { return points_.front().litres; }
    double greatestLitres() const { return points_.back().litres; }
    const std::vector<Blind>& blinds() const { return blinds_; }

private:
    struct Point
    {
        double level;
        double litres;
    };

    void joinBlinds();
    bool isLevel(double level) const;

    std::vector<Point> points_; // by level
    std::vector<Blind> blinds_;
    LevelKind kind_;
    double fullScale_; // above it a sensor tells errors
};

} // namespace vlk
