#pragma once

// One row of the catalogue as it is written down: mask bit, type, element name.

#include <cstdint>
#include <string_view>

namespace vlk {

// How the bytes of a value are read; all are little-endian in a record.
enum class ValueType : std::uint8_t { u8, u16, u32, u64, i8, i16, i32, i64, f32 };

struct ElementRow
{
    std::uint8_t field;
    ValueType type;
    std::string_view name;
};

} // namespace vlk
