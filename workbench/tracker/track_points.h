#pragma once

// What the tracker records of a day that the vehicle drives: track points by time, way and course, and the
// events of its lines and sensors, by the settings that held at each second. At most one record a second; of
// several events at once the later ones follow in the next seconds.

#include "tracker/day_plan.h"
#include "tracker/moment.h"

#include <vector>

namespace tracker {

// Where the recording stands between two days.
struct Trace
{
    quint32 records = 0; // made before
    qint64 time = 0;     // of the last point, Unix seconds
    double km = 0;
    double course = 0;
    SensorStates sensed;
    qint64 standsSince = 0; // 0 in motion
    bool stopTold = true;
    bool speeding = false;
};

struct TrackPoint
{
    int second; // of the day
    EventCode code;
    RecordKind kind;
};

struct TrackedDay
{
    struct Sensed
    {
        int second; // from then on
        SensorStates states;
    };

    std::vector<TrackPoint> points; // by time
    std::vector<Sensed> sensed;     // by time, the first as the day begins
    Trace end;
};

TrackedDay trackDay(quint64 seed, qint64 midnight, const DayPlan& plan, const Trace& begin,
                    const SettingsHistory& settings);

double outsideTemperature(quint64 seed, qint64 time);

} // namespace tracker
