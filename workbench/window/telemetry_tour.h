#pragma once

// The tour's steps through live telemetry: records on their tabs, a walk back through the archive, switching,
// keys and tags with their packets, the tachograph, the earlier protocols and the production page.

#include "window/tour.h"

namespace workbench {

std::vector<Tour::Step> telemetryTour();

} // namespace workbench
