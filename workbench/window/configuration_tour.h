#pragma once

// The tour's steps through the configuration window: a change of settings (edit_tour.h), every page and form
// in both languages, what the pages open, the test of a server.

#include "window/tour.h"

namespace workbench {

std::vector<Tour::Step> configurationTour();

} // namespace workbench
