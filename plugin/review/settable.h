#pragma once

// What a person may set: stricter than a load, which takes a text for the nearest value there is.

#include "document/configuration.h"

namespace vlk::review {

// Ports of servers in use; the widgets take the numbers beside them too.
inline constexpr int kLowestPort = 1;
inline constexpr int kHighestPort = 65535;

// Whether the text is one that the window of the setting lets be typed and does not mark as wrong. Ranges,
// codes and lengths are told by takenAs (change.h).
bool isSettable(const Setting& setting, const QString& text);

// Whether the window marks the value that the configuration has at the key beside its others: a port of 0
// beside the address of a server.
bool isDoubted(const Configuration& configuration, int key);

} // namespace vlk::review
