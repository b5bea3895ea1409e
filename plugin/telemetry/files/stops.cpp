#include "telemetry/files/stops.h"

#include "telemetry/files/track_points.h"

#include <cmath>

namespace vlk {

namespace {

constexpr double kStandingBelow = 3; // km/h
constexpr qint64 kShortestStanding = qint64{3} * 60;

} // namespace

std::vector<Stop> stopsOf(RecordColumns& columns, const std::vector<int>& byTime)
{
    const NumberColumn& speeds = columns.numbers(item("Speed"));
    const std::vector<quint32>& times = columns.times();
    std::vector<Stop> stops;
    Stop stop{-1, -1};
    const auto end = [&] {
        if (stop.first >= 0 && qint64{times[stop.last]} - times[stop.first] >= kShortestStanding)
            stops.push_back(stop);
        stop = {-1, -1};
    };
    for (const int record : byTime) {
        // A record without a speed says nothing.
        if (std::isnan(speeds[record]))
            continue;
        if (stop.first >= 0 && isGapBetween(times[stop.last], times[record]))
            end();
        if (speeds[record] >= kStandingBelow) {
            end();
            continue;
        }
        if (stop.first < 0)
            stop.first = record;
        stop.last = record;
    }
    end();
    return stops;
}

} // namespace vlk
