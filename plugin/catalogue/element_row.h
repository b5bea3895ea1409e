#pragma once

// One row of the catalogue as it is written down: mask bit, type, element name, and what its number measures.
//
//     {18, u16, "Power", in(volt).per(1000)}               18712 is 18.712 V
//     {101, u32, "TahoOdometer", number().per(10).none(7)}  a number without a unit; 7 means no value
//     {28, u8, "StateIn1"}                                  bits or a code: nothing to measure

#include <cstdint>
#include <optional>
#include <string_view>

namespace vlk {

// How the bytes of a value are read; all are little-endian in a record.
enum class ValueType : std::uint8_t { U8, U16, U32, U64, I8, I16, I32, I64, F32 };

enum class Unit : std::uint8_t {
    None,
    Percent,
    Humidity, // percent of relative humidity
    Volt,
    Millivolt,
    Milliampere,
    Hertz,
    Degree, // of an angle
    Celsius,
    TurnsPerMinute,
    Metre,
    Kilometre,
    KilometrePerHour,
    Litre,
    LitrePerHour,
    Kilogram,
    Second,
    Hour,
    UnixSeconds, // a moment
    DecibelMilliwatt,
};

// The number of an element, multiplied by the one and divided by the other, in a unit.
struct Measure
{
    Unit unit = Unit::None;
    double multiplier = 1;
    double divisor = 1;
    std::optional<std::int64_t> noValue{}; // the code that means that there is no value
    bool belowZeroIsNone = false;          // no number below 0 is a value

    constexpr Measure times(double factor) const
    {
        Measure changed = *this;
        changed.multiplier = factor;
        return changed;
    }
    constexpr Measure per(double parts) const
    {
        Measure changed = *this;
        changed.divisor = parts;
        return changed;
    }
    constexpr Measure none(std::int64_t code) const
    {
        Measure changed = *this;
        changed.noValue = code;
        return changed;
    }
    constexpr Measure noneBelowZero() const
    {
        Measure changed = *this;
        changed.belowZeroIsNone = true;
        return changed;
    }

    constexpr double of(double number) const { return number * multiplier / divisor; }
};

constexpr Measure in(Unit unit)
{
    return {.unit = unit};
}

constexpr Measure number()
{
    return {};
}

struct ElementRow
{
    std::uint8_t field;
    ValueType type;
    std::string_view name;
    Measure measure{};
};

} // namespace vlk
