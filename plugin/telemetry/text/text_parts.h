#pragma once

// A text in the parts that it is made of: a word, then characters, then a unit behind a blank. Any of them
// may be missing. Whoever joins them looks the words up: a window each time, an export once.

#include "telemetry/text/ascii_text.h"
#include "telemetry/text/word.h"

namespace vlk {

// The words are those of the tables, which stay.
struct TextParts
{
    const Word* word = nullptr;
    AsciiText characters;
    const Word* unit = nullptr;
};

} // namespace vlk
