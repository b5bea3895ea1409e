#pragma once

// The catalogue of telemetry fields, computed from the rows of element_rows.h at compile time.
//
// A field is one bit of a record's mask (0 to 254). An element is one named value. Most fields are one
// element; a group field is several, which a record holds all or not at all. Elements stand in the order of
// their bytes, so that element order, mask order and byte order are one.
//
//     page.raw(element("Power"))          a name that does not exist does not compile
//     kElements[element("Temp1") + n]     the n-th element behind Temp1
//     kFields[element.field].offset       where a field stands in a block that holds all fields

#include "catalogue/element_rows.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>

namespace vlk {

inline constexpr int kElementCount = static_cast<int>(std::size(catalogue::kElementRows));
inline constexpr int kFieldCount = catalogue::kElementRows[kElementCount - 1].field + 1;

// Fields of protocol 1.0. The earlier record format, protocol 2.0, knows some more; all are those of 3.0.
inline constexpr int kZeta10Count = 69;
inline constexpr int kEarlierFieldCount = 122;

// Position of an element in kElements; never to be confused with a mask bit.
enum ElementIndex : std::uint16_t {};

constexpr ElementIndex operator+(ElementIndex first, std::integral auto steps)
{
    return static_cast<ElementIndex>(static_cast<int>(first) + static_cast<int>(steps));
}

constexpr int width(ValueType type)
{
    switch (type) {
    case ValueType::U8:
    case ValueType::I8:
        return 1;
    case ValueType::U16:
    case ValueType::I16:
        return 2;
    case ValueType::U32:
    case ValueType::I32:
    case ValueType::F32:
        return 4;
    case ValueType::U64:
    case ValueType::I64:
        return 8;
    }
    return 0;
}

constexpr bool isSigned(ValueType type)
{
    return type >= ValueType::I8 && type <= ValueType::I64;
}

// Offsets and widths are bytes; an offset is counted in the block that holds every field.
struct Element
{
    std::string_view name;
    std::uint16_t offset;
    std::uint8_t width;
    std::uint8_t field;
    ValueType type;
    Measure measure;
};

struct Field
{
    std::uint16_t offset;
    std::uint8_t width;
    std::uint8_t elementCount;
    ElementIndex firstElement;
};

inline constexpr std::array<Element, kElementCount> kElements = [] {
    std::array<Element, kElementCount> elements{};
    int offset = 0;
    for (int i = 0; i < kElementCount; ++i) {
        const ElementRow& row = catalogue::kElementRows[i];
        elements[i] = {row.name,
                       static_cast<std::uint16_t>(offset),
                       static_cast<std::uint8_t>(width(row.type)),
                       row.field,
                       row.type,
                       row.measure};
        offset += elements[i].width;
    }
    return elements;
}();

inline constexpr std::array<Field, kFieldCount> kFields = [] {
    std::array<Field, kFieldCount> fields{};
    for (int i = 0; i < kElementCount; ++i) {
        const Element& element = kElements[i];
        Field& field = fields[element.field];
        if (field.elementCount == 0) {
            field.offset = element.offset;
            field.firstElement = static_cast<ElementIndex>(i);
        }
        field.width = static_cast<std::uint8_t>(field.width + element.width);
        ++field.elementCount;
    }
    return fields;
}();

// At n the bytes of the first n fields together.
inline constexpr std::array<std::uint16_t, kFieldCount + 1> kBytesBefore = [] {
    std::array<std::uint16_t, kFieldCount + 1> bytes{};
    for (int i = 0; i < kFieldCount; ++i)
        bytes[i + 1] = static_cast<std::uint16_t>(bytes[i] + kFields[i].width);
    return bytes;
}();

// Bytes of a block that holds the first `fieldCount` fields.
constexpr int blockBytes(int fieldCount)
{
    return kBytesBefore[fieldCount];
}

inline constexpr int kBlockBytes = blockBytes(kFieldCount);
inline constexpr int kEarlierBlockBytes = blockBytes(kEarlierFieldCount);
static_assert(kFieldCount == 255);
static_assert(kBlockBytes == 734);
static_assert(kEarlierBlockBytes == 404);

// The element of that name, at compile time.
consteval ElementIndex element(std::string_view name)
{
    for (int i = 0; i < kElementCount; ++i) {
        if (catalogue::kElementRows[i].name == name)
            return static_cast<ElementIndex>(i);
    }
    throw "the catalogue has no element of this name";
}

// The mask bit of the element of that name, at compile time.
consteval int field(std::string_view name)
{
    return kElements[element(name)].field;
}

// The element of a name that comes from a file; names are case-sensitive.
std::optional<ElementIndex> findElement(std::string_view name);

} // namespace vlk
