#pragma once

// The extension CompareFiles.

#include "link/messages.h"

namespace vlk {

// Gives each difference to the host, and fills what it asked for. A record without a path or a function asks
// for nothing.
void compareFiles(FileComparison& asked);

} // namespace vlk
