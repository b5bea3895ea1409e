#pragma once

// Where failed saves are told, as "PATH: REASON", since the windows of the plug-in stay silent about them.

#include <QLoggingCategory>

namespace vlk {

Q_DECLARE_LOGGING_CATEGORY(lcSave)
// Volumes that a calibration file holds without their fraction, as "PATH: VOLUMES".
Q_DECLARE_LOGGING_CATEGORY(lcCut)

} // namespace vlk
