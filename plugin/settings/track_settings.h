#pragma once

// The settings of the section TRACK: when the tracker writes a point, which coordinates it rejects, what it
// does at stops, which satellites it listens to.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kTrackSettings;

} // namespace vlk
