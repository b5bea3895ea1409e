#pragma once

// What a stored file does not hold as it was written, in words for the user: how many of its records are
// whole, where reading stopped or went on, and why.

#include "telemetry/files/telemetry_pages.h"

#include <functional>

namespace vlk {

// The sentence in the language in use, asked for as often as one likes; null for a file without damage. The
// contents may be gone by then.
std::function<QString()> damageText(const TelemetryContents& contents);

} // namespace vlk
