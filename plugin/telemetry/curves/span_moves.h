#pragma once

// Zooming and panning of a span of time within that of all records.

#include "telemetry/shown/shown_records.h"

namespace vlk {

// By a factor below 1 it shrinks round that moment, which stays where it is; to no less than some seconds and
// no more than the whole.
TimeSpan zoomed(const TimeSpan& span, double factor, double round, const TimeSpan& whole);
// By a share of its length, as far as the ends of the whole.
TimeSpan moved(const TimeSpan& span, double share, const TimeSpan& whole);
// The span moved to hold the moment, in its middle where it did not.
TimeSpan holding(const TimeSpan& span, double moment, const TimeSpan& whole);

} // namespace vlk
