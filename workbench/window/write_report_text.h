#pragma once

// What became of a configuration on its way to the tracker, in words.

#include "road/road_report.h"

namespace workbench {

// The first line says whether it is written; what to do about it, what stays as it was and where the file
// lies come behind it, and what became of numbers that were still being typed, if there were any.
QString summary(const RoadReport& report, const QString& typed = {});

// The summary and a line a setting, for a file or the clipboard, divided by tabs.
QString plainText(const RoadReport& report, const QString& typed = {});

} // namespace workbench
