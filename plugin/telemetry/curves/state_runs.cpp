#include "telemetry/curves/state_runs.h"

#include <algorithm>

namespace vlk {

bool StateRuns::isAny(const std::vector<Run>& runs, double from, double to)
{
    const auto run = std::ranges::lower_bound(runs, from, {},
                                              [](const Run& each) { return static_cast<double>(each.to); });
    return run != runs.end() && run->from <= to;
}

} // namespace vlk
