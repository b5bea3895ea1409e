#pragma once

// The settings of the section ACCEL: the levels at which the sensors made of the accelerometer trigger.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kAccelSettings;

} // namespace vlk
