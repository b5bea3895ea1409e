#pragma once

// How far the litres of a tank swing by themselves: what averages before and after a moment differ by at
// times, though nobody pours or takes. From thresholds below that false refuellings and drains come.

#include "telemetry/fuel/vehicle_times.h"

namespace vlk {

// `litres`: one a record. 0 where there are too few levels to tell.
double levelNoise(RecordColumns& columns, const NumberColumn& litres);

} // namespace vlk
