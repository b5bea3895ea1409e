#pragma once

// The word behind a number in a unit; no word where no text names the unit.

#include "catalogue/element_row.h"
#include "telemetry/text/word.h"

#include <array>

namespace vlk {

inline constexpr auto kUnitWords = [] {
    std::array<Word, static_cast<std::size_t>(Unit::decibelMilliwatt) + 1> words;
    const auto say = [&](Unit unit, Word word) { words[static_cast<std::size_t>(unit)] = word; };
    say(Unit::percent, "%");
    say(Unit::humidity, "abbr_008");
    say(Unit::volt, "abbr_011");
    say(Unit::millivolt, "abbr_012");
    say(Unit::milliampere, "abbr_027");
    say(Unit::hertz, "abbr_013");
    say(Unit::degree, "abbr_016");
    say(Unit::celsius, "abbr_017");
    say(Unit::turnsPerMinute, "abbr_018");
    say(Unit::metre, "abbr_022");
    say(Unit::kilometre, "abbr_023");
    say(Unit::kilometrePerHour, "abbr_024");
    say(Unit::litre, "abbr_026");
    say(Unit::kilogram, "abbr_009");
    say(Unit::second, "abbr_003");
    say(Unit::hour, "abbr_001");
    say(Unit::decibelMilliwatt, "dBm");
    return words;
}();

constexpr const Word& unitWord(Unit unit)
{
    return kUnitWords[static_cast<std::size_t>(unit)];
}

} // namespace vlk
