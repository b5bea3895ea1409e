#pragma once

// What became of a configuration on its way to the tracker, in words.

#include "road/road_report.h"

namespace workbench {

// The first line says whether it is written; what to do about it, what stays as it was and where the file
// lies come behind it, and which fields are to be looked at again.
QString summary(const RoadReport& report);

// The latter alone; empty for most, and where nothing was written.
QString lookAgainText(const RoadReport& report);

// The summary and a line a setting, for a file or the clipboard, divided by tabs.
QString plainText(const RoadReport& report);

} // namespace workbench
