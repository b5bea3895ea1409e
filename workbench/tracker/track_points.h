#pragma once

// What the tracker records of a day that the vehicle drives: track points by time, way and course, the
// events of its lines and sensors, and which coordinates it takes, by the settings that held at each second.
// At most one record a second; of several events at once the later ones follow in the next seconds.

#include "tracker/day_plan.h"
#include "tracker/event_code.h"
#include "tracker/moment.h"

#include <algorithm>
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
    Fix fix;
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

// What holds from which second of the day on.
template <class State>
class Timeline
{
public:
    Timeline() : Timeline(State()) {}
    explicit Timeline(const State& first) : entries_{{0, first}} {}

    void add(int second, const State& state) { entries_.push_back({second, state}); }
    const State& at(qint64 second) const
    {
        const auto later =
            std::ranges::upper_bound(entries_.begin() + 1, entries_.end(), second, {}, &Entry::second);
        return (later - 1)->state;
    }

private:
    struct Entry
    {
        int second;
        State state;
    };

    std::vector<Entry> entries_; // by time
};

struct TrackedDay
{
    std::vector<TrackPoint> points; // by time
    Timeline<SensorStates> sensed;
    Timeline<Fix> fixes; // where it begins or ends to be valid
    Trace end;
};

TrackedDay trackDay(quint64 seed, qint64 midnight, const DayPlan& plan, const Trace& begin,
                    const SettingsHistory& settings);

double outsideTemperature(quint64 seed, qint64 time);

} // namespace tracker
