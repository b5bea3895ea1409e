#pragma once

// Saves that failed. Each is a warning "PATH: REASON", and the file still holds what it held before; whoever
// has a user in front of it, the host, tells of it.

#include <QLoggingCategory>

namespace vlk {

Q_DECLARE_LOGGING_CATEGORY(lcSave)

} // namespace vlk
