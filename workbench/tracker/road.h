#pragma once

// The tour that the vehicle drives: one closed way through and around a city, with its speed limits.

namespace tracker {

struct RoadPoint
{
    double latitude;  // degrees
    double longitude; // degrees
    double altitude;  // metres
    double course;    // degrees from north, 0 to 360
};

// Where the tour is after so many kilometres; it begins again behind its end.
RoadPoint roadAt(double km);
// The speed limit there, km/h.
int speedLimitAt(double km);
// The last kilometre with a view of the sky: before an underpass while in it, the same kilometre elsewhere.
double lastOpenKm(double km);

} // namespace tracker
