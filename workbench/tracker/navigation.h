#pragma once

// The tracker's satellite receiver, and which of its coordinates the tracker takes: a coordinate that it does
// not take leaves the last one that it took in the records.

#include "tracker/day_plan.h"
#include "tracker/road.h"
#include "tracker/working_settings.h"

namespace tracker {

// In use, by system.
struct Satellites
{
    int gps = 0;
    int glonass = 0;
    int beidou = 0;

    int all() const { return gps + glonass + beidou; }
    double hdop() const { return 0.06 * (24 - all()); }
};

// After so many kilometres of the tour: an underpass hides nearly all of them.
Satellites satellitesAt(quint64 seed, qint64 time, double km, const NavigationRules& rules);

// Where the tracker last took a coordinate.
struct Fix
{
    bool valid = true; // the present one is taken too
    qint64 time = 0;   // Unix seconds
    double km = 0;     // of the tour
    // Coordinates are thrown away until then, after one that jumped.
    qint64 rejectedUntil = 0;
};

// Takes the coordinate of that second of the segment, or does not.
void navigate(Fix& fix, quint64 seed, const Segment& segment, int second, const NavigationRules& rules);

// How far the coordinates of a vehicle that stands wander, in metres, while its ignition is on or off and its
// movement sensor is triggered or at rest.
double wanderingOf(const NavigationRules& rules, bool ignition, bool moved);
// That far away at most.
RoadPoint wandered(RoadPoint point, quint64 seed, qint64 time, double metres);

} // namespace tracker
