#pragma once

// What keeps a call from writing over files that somebody needs.

#include "command/call.h"

namespace workbench::command {

// Why the output of the call must not take the place of what is there: a file that the call reads, under
// whatever name, or one of trackers that it would replace by something else, such as the first file of a
// pattern behind -o; or by the same where several files are named. Empty where it may.
QString whyNotReplaced(const Call& call);

} // namespace workbench::command
