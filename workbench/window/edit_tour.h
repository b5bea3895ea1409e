#pragma once

// The tour's steps through a change of settings: read the tracker's configuration, edit at least one value on
// every page with the keyboard, write it, see that the tracker took exactly what was edited, and that all of
// it comes back into the window and from there into a file. They leave the window open.

#include "window/tour.h"

namespace workbench {

std::vector<Tour::Step> editTour();

} // namespace workbench
