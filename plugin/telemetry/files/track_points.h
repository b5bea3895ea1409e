#pragma once

// Where the vehicle was: the records that are points of its track, one rule for the track on show, its
// exports and its sums.

#include "telemetry/files/record_gaps.h"

#include <cmath>
#include <functional>
#include <vector>

namespace vlk {

// Degrees; some hundred metres, since the coordinates of a vehicle that stands wander. False without a place.
inline bool isSamePlace(double latitude, double longitude, double otherLatitude, double otherLongitude)
{
    constexpr double near = 0.005;
    return std::abs(latitude - otherLatitude) < near &&
           std::abs(std::remainder(longitude - otherLongitude, 360.0)) < near;
}

struct TrackPoint
{
    int record;
    quint32 time;    // seconds since 1970 in UTC
    double latitude; // degrees
    double longitude;
    bool startsSegment; // the first one, and the first that is far in time from the one before
};

// The records that have latitude and longitude in range, not both 0, and no state that calls the fix invalid,
// from that record on, in the order of the store. `before`: the last point of what comes before, if any.
std::vector<TrackPoint> trackPoints(RecordColumns& columns, int firstRecord = 0,
                                    const TrackPoint* before = nullptr);
// The points one by one, without the memory for all of them and their columns.
void forEachTrackPoint(RecordColumns& columns, int firstRecord, int behindRecord, const TrackPoint* before,
                       const std::function<void(const TrackPoint&)>& visit);

// On the ellipsoid WGS 84. NaN where PROJ, which is loaded when it is asked for the first time, is not
// installed.
double metresBetween(const TrackPoint& one, const TrackPoint& other);

} // namespace vlk
