#pragma once

// Names in two parts, told apart where they are written: "POINTS/angle" is the key `angle` of the element
// POINTS, "TACH/comboBox_Type" a widget of the form TACH. In repeated rows and rules every name may hold
// numbers (base/numbered_name.h).

#include <cstdint>
#include <string_view>

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

} // namespace vlk
