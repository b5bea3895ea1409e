#pragma once

// What a person may set: stricter than a load, which takes a text for the nearest value there is.

#include "settings/setting.h"

namespace vlk::review {

// Whether the text is one that the window of the setting lets be typed and does not mark as wrong. Ranges,
// codes and lengths are told by takenAs (change.h).
bool isSettable(const Setting& setting, const QString& text);

} // namespace vlk::review
