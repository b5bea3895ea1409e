#pragma once

// Where files that could not be saved are told of, as "PATH: REASON", by windows that tell their user
// nothing.

#include <QLoggingCategory>

namespace vlk {

Q_DECLARE_LOGGING_CATEGORY(lcSave)

} // namespace vlk
