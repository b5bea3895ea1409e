#pragma once

// The tour's steps through a configuration: read it, edit the Transfer page, write it back, and see that the
// tracker took exactly what was edited.

#include "window/tour.h"

namespace vlk {

std::vector<Tour::Step> configurationTour();

} // namespace vlk
