#pragma once

// The litres of a tank as medians over windows of time, in which swinging fuel and single wrong levels
// vanish.

#include "telemetry/files/vehicle_times.h"

namespace vlk {

// Seconds that sensors need, once the ignition is on.
inline constexpr quint32 kWakeTime = 120;

// The median of neighbouring records with one state of motion.
struct LevelMedian
{
    double from; // seconds since 1970
    double until;
    int first; // record
    int last;
    int count; // of levels
    double litres;
    bool moves;
    bool burns;      // the engine may run
    double latitude; // of the last record, NaN where it has none
    double longitude;

    double middle() const { return (from + until) / 2; }
};

double medianOf(std::vector<double>& numbers);

// By time. Records without a level take no part, nor do those right after the ignition went on.
std::vector<LevelMedian> levelMedians(RecordColumns& columns, const NumberColumn& litres);

} // namespace vlk
