#pragma once

// Numbers as a file holds them, read and written. What is no number, or does not fit the type, counts as 0.

#include <QLocale>

#include <charconv>
#include <string_view>

namespace vlk {

constexpr std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

template <class Number>
Number numberFrom(std::string_view text)
{
    text = trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : Number{};
}

// The shortest text that reads back as the same double.
inline QByteArray shortestText(double number)
{
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace vlk
