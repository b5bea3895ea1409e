#pragma once

// Names in two parts, told apart where they are written: "POINTS/angle" is the key `angle` of the element
// POINTS, "TACH/comboBox_Type" a widget of the form TACH. In repeated rows and rules every name may hold
// numbers.

#include "base/numbered_name.h"

namespace vlk {

// A widget by its form, "" for one of the page's own; a key by its element, which may be a path itself.
struct Name
{
    constexpr Name() = default;
    constexpr Name(const char* whole) : head(whole), tail(whole) // a text is a name
    {
        const std::size_t slash = whole ? std::string_view(whole).rfind('/') : std::string_view::npos;
        if (slash == std::string_view::npos)
            return;
        headSize = static_cast<std::uint8_t>(slash);
        tail = whole + slash + 1;
    }
    constexpr Name(const char* first, const char* second)
        : head(first), tail(second), headSize(static_cast<std::uint8_t>(std::string_view(first).size()))
    {
    }

    constexpr explicit operator bool() const { return tail; }
    // The element of a key.
    constexpr std::string_view form() const { return {head ? head : "", headSize}; }

    const char* head = nullptr;
    const char* tail = nullptr; // the widget, the key
    std::uint8_t headSize = 0;
};

// A key whose row is found when its table is made (table_maker.h).
struct Path : Name
{
    using Name::Name;
    std::int16_t row = -1;
};

// Holds while the value at the path is one of `codes` ("NS+|NB+"), or not 0 and not empty where `codes` is
// empty. Of whenSame(): while it is that of the same key in the element `codes`. Without a path it always
// holds.
struct When : Path
{
    bool negated = false;
    bool same = false;
    std::int16_t other = -1; // row of the same key
    const char* codes = "";
};

constexpr When when(Path path, const char* codes = "")
{
    return {path, false, false, -1, codes};
}

constexpr When unless(Path path, const char* codes = "")
{
    return {path, true, false, -1, codes};
}

constexpr When whenSame(Path path, const char* element)
{
    return {path, false, true, -1, element};
}

} // namespace vlk
