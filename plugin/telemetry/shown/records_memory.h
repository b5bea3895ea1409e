#pragma once

// Where the window of records keeps what was chosen in it.

#include <QString>

namespace vlk {

// A file beside the host's configurations (base/settings_file.h).
QString recordsMemory(const char* name);

} // namespace vlk
