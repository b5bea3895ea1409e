#pragma once

// The word behind a number in a unit; no word where no text names the unit.

#include "catalogue/element_row.h"
#include "telemetry/text/word.h"

#include <array>

namespace vlk {

inline constexpr auto kUnitWords = [] {
    std::array<Word, static_cast<std::size_t>(Unit::DecibelMilliwatt) + 1> words;
    const auto say = [&](Unit unit, Word word) { words[static_cast<std::size_t>(unit)] = word; };
    say(Unit::Percent, "%");
    say(Unit::Humidity, "abbr_008");
    say(Unit::Volt, "abbr_011");
    say(Unit::Millivolt, "abbr_012");
    say(Unit::Milliampere, "abbr_027");
    say(Unit::Hertz, "abbr_013");
    say(Unit::Degree, "abbr_016");
    say(Unit::Celsius, "abbr_017");
    say(Unit::TurnsPerMinute, "abbr_018");
    say(Unit::Metre, "abbr_022");
    say(Unit::Kilometre, "abbr_023");
    say(Unit::KilometrePerHour, "abbr_024");
    say(Unit::Litre, "abbr_026");
    say(Unit::Kilogram, "abbr_009");
    say(Unit::Second, "abbr_003");
    say(Unit::Hour, "abbr_001");
    say(Unit::DecibelMilliwatt, "dBm");
    return words;
}();

constexpr const Word& unitWord(Unit unit)
{
    return kUnitWords[static_cast<std::size_t>(unit)];
}

} // namespace vlk
