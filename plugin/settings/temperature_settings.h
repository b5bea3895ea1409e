#pragma once

// The settings of the section TEMPSENS: normal range, hysteresis and filter of the four temperature sensors.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kTemperatureSettings;

} // namespace vlk
