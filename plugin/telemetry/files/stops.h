#pragma once

// When the vehicle stood: one rule for curves and track.

#include "telemetry/files/record_columns.h"

namespace vlk {

struct Stop
{
    // The records that tell so, by time.
    int first;
    int last;
};

// Runs of records below 3 km/h that last at least 3 minutes, without a gap between two of them. `byTime`: the
// records to look at, in the order of their times.
std::vector<Stop> stopsOf(RecordColumns& columns, const std::vector<int>& byTime);

} // namespace vlk
