#pragma once

// The tour's steps through the quick setup window: open it with the tracker's configuration, edit it, save it
// to a file, and carry it over into the full window.

#include "window/tour.h"

namespace workbench {

std::vector<Tour::Step> quickTour();

} // namespace workbench
