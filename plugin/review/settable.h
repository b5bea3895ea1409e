#pragma once

// What a person may set: stricter than a load, which takes a text for the nearest value there is.

#include "review/advice.h"
#include "review/change.h"
#include "settings/setting.h"

namespace vlk::review {

// Ports of servers in use; the widgets take the numbers beside them too.
inline constexpr int kLowestPort = 1;
inline constexpr int kHighestPort = 65535;

// Whether the text is one that the window of the setting lets be typed and does not mark as wrong. Why a load
// takes it for another one is `change` (takenAs), which tells of ranges, codes and lengths.
bool isSettable(const Setting& setting, const QString& text, Change change);

// What the window marks as an error of the value that the key has beside the others, of what there is to
// advise: a PIN that is too short, a port of 0 beside the address of a server. Null where there is none; a
// value that is empty waits for one.
const Finding* errorOf(const std::vector<Finding>& findings, int key, const QString& value);

} // namespace vlk::review
