#pragma once

// The settings of the section PROTOCOL: the version of the protocol and the fields of a record, a mask of 255
// characters. Which widget chooses which fields says data_set_boxes.h.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kDataSetSettings;

} // namespace vlk
