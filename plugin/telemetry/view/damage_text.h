#pragma once

// What a stored file does not hold as it was written, told the user: how many of its records are whole, where
// reading stopped or went on, and why.

#include "telemetry/files/telemetry_contents.h"

#include <functional>

namespace vlk {

class NoticeBar;

// Puts it into the bar that is at the top of the window, or takes away what is told there of another file.
// The bar offers to go to the record behind the first damaged place, counted from 0, and shows all places
// where it does not name them itself.
void tellDamage(NoticeBar* bar, const TelemetryContents& contents,
                const std::function<void(int record)>& goTo);

} // namespace vlk
