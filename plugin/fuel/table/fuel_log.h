#pragma once

// Where calibration files that hold nothing to take are told of; the windows tell their user nothing.

#include <QLoggingCategory>

namespace vlk {

Q_DECLARE_LOGGING_CATEGORY(lcFuel)

} // namespace vlk
