#pragma once

// The settings of the section SYSTEM: passwords, time, when fuel sensors are powered, how a running engine is
// told, the sensor of the supply voltage.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kSystemSettings;

} // namespace vlk
