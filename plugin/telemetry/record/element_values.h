#pragma once

// Typed reading of catalogue elements from little-endian bytes, shared by everything that carries elements:
// records of both formats and extra packets.
//
// A source gives `const std::uint8_t* find(ElementIndex) const`, the first byte of an element or null if it
// carries none of that name; what it does not carry reads as 0. Reading does not look at a record's mask.

#include "catalogue/field_catalogue.h"

#include <QtEndian>

#include <bit>
#include <tuple>

namespace vlk {

// The C++ type of a catalogue type, in the order of ValueType.
template <ValueType type>
using CppValue =
    std::tuple_element_t<static_cast<std::size_t>(type),
                         std::tuple<std::uint8_t, std::uint16_t, std::uint32_t, std::uint64_t, std::int8_t,
                                    std::int16_t, std::int32_t, std::int64_t, float>>;

// The first `width` bytes as an unsigned number.
inline std::uint64_t rawAt(const std::uint8_t* bytes, int width)
{
    switch (width) {
    case 1:
        return *bytes;
    case 2:
        return qFromLittleEndian<quint16>(bytes);
    case 4:
        return qFromLittleEndian<quint32>(bytes);
    default:
        return qFromLittleEndian<quint64>(bytes);
    }
}

// The bytes of a value, taken as an unsigned number, with the sign of its type; of a float its bits.
constexpr std::int64_t integerOf(std::uint64_t raw, ValueType type)
{
    const int unused = isSigned(type) ? 64 - 8 * width(type) : 0;
    return static_cast<std::int64_t>(raw << unused) >> unused;
}

// The value as a number, whatever its type; above 53 bits it is rounded.
constexpr double numberOf(std::uint64_t raw, ValueType type)
{
    if (type == ValueType::F32)
        return std::bit_cast<float>(static_cast<std::uint32_t>(raw));
    return isSigned(type) ? static_cast<double>(integerOf(raw, type)) : static_cast<double>(raw);
}

template <class Source>
class ElementValues
{
public:
    // The value with its catalogue type: value<element("Speed")>() is a float.
    template <ElementIndex index>
    CppValue<kElements[index].type> value() const
    {
        constexpr ValueType type = kElements[index].type;
        if constexpr (type == ValueType::F32)
            return std::bit_cast<float>(static_cast<std::uint32_t>(raw(index)));
        else
            return static_cast<CppValue<type>>(raw(index));
    }

    // The bytes of the value as an unsigned number; of a float its bits.
    std::uint64_t raw(ElementIndex index) const
    {
        const std::uint8_t* bytes = static_cast<const Source*>(this)->find(index);
        return bytes ? rawAt(bytes, kElements[index].width) : 0;
    }

    std::int64_t integer(ElementIndex index) const { return integerOf(raw(index), kElements[index].type); }
    double number(ElementIndex index) const { return numberOf(raw(index), kElements[index].type); }
};

} // namespace vlk
