#pragma once

// When a state of two was on, as a band below the curves draws it. It lasts until the next record that tells
// it; over a gap nothing is known.

#include "telemetry/files/record_gaps.h"

namespace vlk {

struct StateRuns
{
    struct Run
    {
        quint32 from;
        quint32 to;
        bool operator==(const Run&) const = default;
    };

    std::vector<Run> on;    // rising
    std::vector<Run> known; // rising

    // `state(record)` gives 1 or 0, and anything else where the record does not tell.
    template <class State>
    StateRuns(const std::vector<int>& byTime, const RecordGaps& gaps, State state);
    StateRuns() = default;

    // Whether it was on, or known, at some moment from `from` to `to`.
    static bool isAny(const std::vector<Run>& runs, double from, double to);

private:
    static void addTo(std::vector<Run>& runs, quint32 from, quint32 to)
    {
        if (!runs.empty() && runs.back().to == from)
            runs.back().to = to;
        else
            runs.push_back({from, to});
    }
};

template <class State>
StateRuns::StateRuns(const std::vector<int>& byTime, const RecordGaps& gaps, State state)
{
    const std::vector<quint32>& times = gaps.times();
    int before = -1;
    int last = -1; // that told it
    for (const int record : byTime) {
        const int now = state(record);
        if (now != 0 && now != 1)
            continue;
        const quint32 time = times[record];
        if (last >= 0 && !gaps.areApart(last, record)) {
            addTo(known, times[last], time);
            if (before == 1)
                addTo(on, times[last], time);
        }
        // A record alone between gaps is a moment.
        addTo(known, time, time);
        if (now == 1)
            addTo(on, time, time);
        before = now;
        last = record;
    }
}

} // namespace vlk
