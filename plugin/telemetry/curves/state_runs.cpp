#include "telemetry/curves/state_runs.h"

#include "telemetry/files/track_points.h"

#include <algorithm>

namespace vlk {

void StateRuns::addTo(std::vector<Run>& runs, quint32 from, quint32 to)
{
    if (!runs.empty() && runs.back().to == from)
        runs.back().to = to;
    else
        runs.push_back({from, to});
}

bool StateRuns::isGap(quint32 from, quint32 to)
{
    return isGapBetween(from, to);
}

bool StateRuns::isAny(const std::vector<Run>& runs, double from, double to)
{
    const auto run =
        std::ranges::lower_bound(runs, from, {}, [](const Run& each) { return double(each.to); });
    return run != runs.end() && run->from <= to;
}

} // namespace vlk
