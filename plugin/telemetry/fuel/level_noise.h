#pragma once

// How far the litres of a tank swing by themselves: what averages before and after a moment differ by at
// times, though nobody pours or takes. From thresholds below that false refuellings and drains come.

#include "telemetry/fuel/level_medians.h"

namespace vlk {

// 0 where there are too few levels to tell.
double levelNoise(const std::vector<LevelMedian>& medians);

} // namespace vlk
