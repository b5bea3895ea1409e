#pragma once

// Refuellings and drains: places at which the litres of a tank rise or fall by more than a threshold, faster
// than an engine burns, and stay there.
//
// Levels are gathered into medians over a window of time, a wide one while the vehicle moves and the fuel
// swings. A step between them counts if what was before and what comes after say the same for a while. The
// first levels after the ignition went on count nothing, since sensors wake then. While the vehicle moves, a
// step counts that exceeds the threshold by more than the level swings. Across a gap the fall is what the
// vehicle can not have burnt.

#include "telemetry/fuel/level_medians.h"

namespace vlk {

struct FuelThresholds
{
    double rise = 20; // litres
    double fall = 10;
};

struct FuelEvent
{
    int record; // the last one with the level before, as a person finds it
    int last;   // the first one with the level after
    quint32 time;
    quint32 until;
    double before; // litres
    double after;
    double latitude; // of the last point of the track by then; NaN where there is none
    double longitude;

    bool isRefuelling() const { return after > before; }
    double litres() const { return after - before; } // with its sign
};

// By time. `litres` and their `medians`: of these records.
std::vector<FuelEvent> findFuelEvents(RecordColumns& columns, const NumberColumn& litres,
                                      const std::vector<LevelMedian>& medians,
                                      const FuelThresholds& thresholds);

} // namespace vlk
