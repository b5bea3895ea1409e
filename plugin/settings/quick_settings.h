#pragma once

// The settings of the quick window: a selection of keys that the pages of the full window own, in one table
// over several sections. It is saved over what the full window has saved: elements of TRANS, TRACK and SYSTEM
// keep their other keys, while SENSORS, RS485 and BLUETOOTH are made anew, with fixed values for whatever the
// window does not show. The mask of the data set follows what the window switches on.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kQuickSettings;

} // namespace vlk
