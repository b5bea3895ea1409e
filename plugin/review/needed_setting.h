#pragma once

// What has to be set first, so that a setting is on show: the type of a device, the use of a line.

#include "settings/values.h"

#include <optional>

namespace vlk::review {

struct Needed
{
    int row = -1; // of the same table
    QString text; // "Device: Fuel level sensors"; the caption alone where several values would do
};

// Nothing for a setting that windows show as things stand.
std::optional<Needed> neededToShow(const Values& values, int row);
// For a condition that does not hold.
Needed neededFor(const Values& values, const When& unmet);

} // namespace vlk::review
