#pragma once

// What the ending of a file says that is in it.

#include "command/call.h"

namespace workbench::command {

// Why the output of the call must not have the ending that it has: what would be in it is something else.
// Empty where it may. An ending that says nothing of ours is free, but for a report.
QString whyOtherEnding(const Call& call);

} // namespace workbench::command
