#pragma once

// Numbers as a file holds them, read and written. What is no number, or does not fit the type, counts as 0.

#include <QLocale>

#include <charconv>
#include <optional>
#include <string_view>

namespace vlk {

constexpr std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// None where it is no number or does not fit the type.
template <class Number>
std::optional<Number> numberIn(std::string_view text)
{
    text = trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isRead = error == std::errc() && end == text.data() + text.size();
    return isRead ? std::optional(number) : std::nullopt;
}

template <class Number>
Number numberFrom(std::string_view text)
{
    return numberIn<Number>(text).value_or(Number{});
}

// The shortest text that reads back as the same double.
inline QByteArray shortestText(double number)
{
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace vlk
