#pragma once

// The extensions that tell a host about configuration files. Each gives what it finds to the host row by row,
// and fills what was asked for; a record without a path or a function asks for nothing.

#include "link/messages.h"

namespace vlk {

void compareFiles(FileComparison& asked);
void checkFile(FileCheck& asked);

} // namespace vlk
