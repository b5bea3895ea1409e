#pragma once

// The settings of the section SENSORS: name and use of the three input lines, and below each line the element
// that its use asks for (IN1/IN1DIN and so on). The lists offer the discrete uses, and on the third line the
// analogue one; the other uses (pulses, frequency, tachometer) have their rows and widgets, but no line
// offers them.
//
// What several uses of a line share (ignition, restore, threshold) is one value of the line, not stored
// itself; each element that has the key links to it.

#include "settings/settings_table.h"

namespace vlk {

extern const SettingsTable kLinesInSettings;

// The usual level, in millivolts, at which a pulse counts.
inline constexpr int kFixationLevel = 6000;

} // namespace vlk
