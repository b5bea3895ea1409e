#include "telemetry/files/stops.h"

#include "telemetry/files/record_gaps.h"
#include "telemetry/files/vehicle_times.h"

#include <cmath>

namespace vlk {

namespace {

constexpr qint64 kShortestStanding = qint64{3} * 60;

} // namespace

std::vector<Stop> stopsOf(RecordColumns& columns, const std::vector<int>& byTime)
{
    const NumberColumn speed = speeds(columns);
    const RecordGaps gaps(columns);
    const std::vector<quint32>& times = gaps.times();
    std::vector<Stop> stops;
    Stop stop{-1, -1};
    const auto end = [&] {
        if (stop.first >= 0 && qint64{times[stop.last]} - times[stop.first] >= kShortestStanding)
            stops.push_back(stop);
        stop = {-1, -1};
    };
    for (const int record : byTime) {
        // A record without a speed says nothing.
        if (std::isnan(speed[record]))
            continue;
        if (stop.first >= 0 && gaps.areApart(stop.last, record))
            end();
        if (speed[record] >= kMovesFrom) {
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
