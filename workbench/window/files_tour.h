#pragma once

// The tour's steps with stored telemetry: saves periods from the live window in every form, browses them and
// shows them as a table. The saved files stay in the tour's folder as samples.

#include "window/tour.h"

namespace workbench {

std::vector<Tour::Step> filesTour();

} // namespace workbench
