#pragma once

// The settings of the section OUTPUTS: name and use of the output line, its signal, and what each event does
// to it. This tracker offers two of the twelve uses; the rules know them all.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kLinesOutSettings;

// The uses as the windows name them and as the file spells them.
extern const std::span<const Code> kOutputUses;

} // namespace vlk
