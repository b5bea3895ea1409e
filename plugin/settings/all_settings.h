#pragma once

// The tables of the whole configuration file, in the order of a save.

#include "settings/settings_table.h"

#include <vector>

namespace vlk {

const std::vector<const SettingsTable*>& allSettings();

} // namespace vlk
