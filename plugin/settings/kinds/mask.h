#pragma once

// A long string of 0 and 1: the fields of a record.

#include "settings/kinds/choice.h"

#include <array>

namespace vlk {

// One widget of a mask and the positions that it sets: a check box all of them alike, a list each as its item
// says.
struct MaskField
{
    const char* widget = nullptr;
    const char* caption = "";
    const char* format = "%1"; // of the text: the caption for %1, the number for %2
    std::uint8_t number = 0;   // for the %1 in the name of the widget
    std::array<std::uint8_t, 4> positions{};
    std::uint8_t count = 0; // of the positions
    bool always = false;    // checked, whatever the file holds
    bool anyReads = false;  // checked where any position is set; else the first one counts
    // What the positions hold for each item of a list. A mask that has none of them there leaves it as it is.
    std::span<const Code> items{};
};

struct Mask : ShownOf<Mask>
{
    const char* load = "";
    std::span<const MaskField> fields{};
    std::int16_t length = 0;
};

// Positions that no field sets are always 0.
constexpr Mask mask(const char* key, const char* loadDefault, std::int16_t length,
                    std::span<const MaskField> fields)
{
    return keyed<Mask>(key, loadDefault).with(&Mask::length, length).with(&Mask::fields, fields);
}

constexpr void check(const Mask& row)
{
    if (std::string_view(row.load).size() > static_cast<std::size_t>(row.length))
        throw "a default is longer than its mask";
    std::array<bool, 256> taken{};
    for (const MaskField& field : row.fields) {
        for (std::size_t i = 0; i < field.count; ++i) {
            if (field.positions[i] >= row.length || taken[field.positions[i]])
                throw "a field of a mask lies outside it or on another one";
            taken[field.positions[i]] = true;
        }
    }
}

QString normalised(const Mask& row, const Reading& reading);

} // namespace vlk
