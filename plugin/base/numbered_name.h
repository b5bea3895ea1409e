#pragma once

// Names of what is repeated: they may hold %1, the number of the repetition, and %2, the number of a
// repetition inside it.

#include <QString>

#include <cstdint>
#include <string_view>

namespace vlk {

// 0 for none.
struct Numbers
{
    std::uint8_t outer = 0;
    std::uint8_t inner = 0;
};

// The name with its numbers in.
QString numberedName(std::string_view name, Numbers numbers);
inline QString numberedName(std::string_view name, int number)
{
    return numberedName(name, Numbers{static_cast<std::uint8_t>(number)});
}

// Its hash, behind what `hash` is that of.
constexpr std::uint64_t hashOf(std::string_view text, Numbers numbers,
                               std::uint64_t hash = 14695981039346656037U)
{
    const auto add = [&](char sign) { hash = (hash ^ static_cast<std::uint8_t>(sign)) * 1099511628211U; };
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at != end; ++at) {
        const char next = *at == '%' && at + 1 != end ? at[1] : '\0';
        const int number = next == '1' ? numbers.outer : next == '2' ? numbers.inner : 0;
        if (number > 9)
            add(static_cast<char>('0' + number / 10));
        add(number > 0 ? static_cast<char>('0' + number % 10) : *at);
        at += number > 0;
    }
    return hash;
}

// Of a path and of a widget, each with what it stands in.
constexpr std::uint64_t pathHash(std::string_view element, Numbers ofElement, std::string_view key,
                                 Numbers numbers)
{
    return hashOf(key, numbers, hashOf("/", {}, hashOf(element, ofElement)));
}
constexpr std::uint64_t widgetHash(std::string_view form, std::string_view widget, Numbers numbers)
{
    // Forms of one class, one a number, have widgets of the same names.
    return hashOf(widget, numbers, hashOf("/", {}, hashOf(form, numbers, numbers.outer)));
}

} // namespace vlk
