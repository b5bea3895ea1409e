#pragma once

// The text of a user parameter: raw bytes to which only a type letter gives a meaning.

#include "telemetry/text/ascii_text.h"

namespace vlk {

// `raw` are the `bytes` (1, 2, 4 or 8) of the value as an unsigned number. Letters: "s" signed, "b" binary
// digits in groups of eight, "f" floating of 4 or 8 bytes; anything else, and "f" of 1 or 2 bytes, is
// unsigned.
void addUserParameter(AsciiText& text, quint64 raw, int bytes, char typeLetter);

} // namespace vlk
