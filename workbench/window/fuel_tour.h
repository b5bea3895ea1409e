#pragma once

// The steps of the tour through a calibration: from pouring to the printed report.

#include "window/tour.h"

namespace workbench {

std::vector<Tour::Step> fuelTour();

} // namespace workbench
