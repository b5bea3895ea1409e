#pragma once

// What a person may set: stricter than a load, which takes a text for the nearest value there is.

#include "document/configuration.h"
#include "review/change.h"

namespace vlk::review {

// Ports of servers in use; the widgets take the numbers beside them too.
inline constexpr int kLowestPort = 1;
inline constexpr int kHighestPort = 65535;

// Whether the text is one that the window of the setting lets be typed and does not mark as wrong. Why a load
// takes it for another one is `change` (takenAs), which tells of ranges, codes and lengths.
bool isSettable(const Setting& setting, const QString& text, Change change);

// Whether the window marks the value that the configuration has at the key beside its others: a port of 0
// beside the address of a server.
bool isDoubted(const Configuration& configuration, int key);

} // namespace vlk::review
