#pragma once

// How a value becomes a text. A rule is data; item_text.cpp is the one place that follows it.
//
// The steps, in this order: the condition on a bit, the code that means no value, the range of bits, the
// scale, the shape, the unit behind a blank. Code, scale and unit are those of the element in the catalogue;
// a rule names a measure of its own where the number means different things.

#include "catalogue/element_row.h"
#include "telemetry/text/word.h"

#include <cstdint>
#include <limits>
#include <span>

class TmiPage_Zeta3;

namespace vlk {

enum class Shape : std::uint8_t {
    Decimal,       // a whole number, with the sign of its type; the default
    Fixed,         // `decimals` digits behind the point
    General,       // up to 6 significant digits, whichever of 1234.5 and 1.2345e+06 is shorter
    Word,          // `set`, always
    TwoState,      // `set` or `clear`, by the bit that the item names or the first of `bits`
    Enumeration,   // a word of `names`, or what `other` says
    ZonedTime,     // "15:00:00 01.02.2025 (UTC +3)" in the zone of the record
    LocalTime,     // "15:00:00 01.02.2025" in the zone of this machine
    DateTime,      // "01.02.2025 15:00:00" in the zone of this machine
    Coordinate,    // "56 30.0000'": minutes with `decimals` digits
    UserParameter, // by its type letter
    Special,       // a function of the record
};

// The values from `first` to `last` share a word; rows of a single value leave `last` out.
struct NamedValue
{
    constexpr NamedValue(std::uint8_t value, Word word) : NamedValue(value, value, word) {}
    constexpr NamedValue(std::uint8_t first, std::uint8_t last, Word word)
        : first(first), last(last), word(word)
    {
    }

    std::uint8_t first;
    std::uint8_t last;
    Word word;
};

struct BitRange
{
    std::uint8_t first = 0;
    std::uint8_t count = 0; // 0: the whole value
};

// The rule holds where this bit of the value is set or clear; elsewhere `otherwise` does, or the text is
// empty.
struct Condition
{
    static constexpr std::uint8_t kNone = 255;

    std::uint8_t bit = kNone;
    bool set = true;
};

enum class Other : std::uint8_t {
    Number,        // the number in decimal
    Word,          // `set`
    WordAndNumber, // "<set>: <number>"
};

struct Rule
{
    Shape shape = Shape::Decimal;
    std::uint8_t decimals = 0;
    Condition when = {};
    const Rule* otherwise = nullptr;
    const Measure* measure = nullptr; // null: that of the element
    Word none = "";                   // the text for the code that means no value
    BitRange bits = {};
    bool cut = false; // drops the fraction of what was scaled
    Word set = {};
    Word clear = {};
    std::span<const NamedValue> names = {};
    Other other = Other::Number;
    bool withUnit = false;
    Word unit = {}; // in place of the unit's own text
    QString (*special)(const TmiPage_Zeta3& page) = nullptr;
    // Shown even where the record lacks the field.
    bool always = false;
};

constexpr Rule bit(Word set, Word clear)
{
    return {.shape = Shape::TwoState, .set = set, .clear = clear};
}

constexpr Rule bitAt(std::uint8_t number, Word set, Word clear)
{
    return {.shape = Shape::TwoState, .bits = {number, 1}, .set = set, .clear = clear};
}

// What no row of `names` covers is shown in decimal.
constexpr Rule named(std::span<const NamedValue> names, BitRange bits = {})
{
    return {.shape = Shape::Enumeration, .bits = bits, .names = names};
}

constexpr Rule namedOr(Word other, std::span<const NamedValue> names, BitRange bits = {},
                       Other kind = Other::Word)
{
    return {.shape = Shape::Enumeration, .bits = bits, .set = other, .names = names, .other = kind};
}

} // namespace vlk
