#pragma once

// The tour's steps through live telemetry: the present record on its tabs, a walk back through the archive,
// an extra packet, the tachograph and the production page.

#include "window/tour.h"

namespace vlk {

std::vector<Tour::Step> telemetryTour();

} // namespace vlk
