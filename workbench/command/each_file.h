#pragma once

// Many files on all cores: their outcomes come in the order of the files, and no more of them wait than the
// cores need. Where standard error is a terminal it shows how many are done.

#include "command/call.h"
#include "command/file_walk.h"
#include "command/output.h"

#include <functional>

namespace workbench::command {

// `work` runs in several threads at once, what outcomes do in turn in the calling one. Gives the greatest
// status.
int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output);

} // namespace workbench::command
