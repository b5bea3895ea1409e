#pragma once

// Where the window of records keeps what was chosen in it.

#include <QString>

namespace vlk {

// A file of the host's folder of configurations; empty where there is no such folder: none is made for this.
QString recordsMemory(const char* name);

} // namespace vlk
