#pragma once

// Reads the names in the left column of item_rows.h, at compile time.

#include "catalogue/field_catalogue.h"

#include <optional>

namespace vlk::items {

// From `first` to `last`, as in "1..8".
struct NumberRange
{
    int first;
    int last;
};

// One word of the column: a stem, the numbers behind it, then bits or a form.
struct ItemPattern
{
    std::string_view stem;
    std::optional<NumberRange> numbers;
    std::optional<NumberRange> bits;
    std::string_view form;
};

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr int toNumber(std::string_view digits)
{
    int number = 0;
    for (const char c : digits) {
        if (!isDigit(c))
            throw "a number was expected in the name of an item";
        number = number * 10 + c - '0';
    }
    return number;
}

// "5" or "0..7".
constexpr NumberRange toRange(std::string_view text)
{
    const std::size_t dots = text.find("..");
    if (dots == text.npos)
        return {toNumber(text), toNumber(text)};
    return {toNumber(text.substr(0, dots)), toNumber(text.substr(dots + 2))};
}

constexpr ItemPattern toPattern(std::string_view text)
{
    ItemPattern pattern{.stem = text.substr(0, text.find('.')), .numbers = {}, .bits = {}, .form = {}};
    std::string_view rest = text.substr(pattern.stem.size());
    if (rest.starts_with("..")) {
        std::size_t digits = 0;
        while (isDigit(pattern.stem[pattern.stem.size() - 1 - digits]))
            ++digits;
        std::size_t end = 2;
        while (end < rest.size() && isDigit(rest[end]))
            ++end;
        const std::size_t letters = pattern.stem.size() - digits;
        pattern.numbers = toRange(text.substr(letters, digits + end));
        pattern.stem = pattern.stem.substr(0, letters);
        rest = rest.substr(end);
    }
    if (rest.empty())
        return pattern;
    rest = rest.substr(1);
    if (isDigit(rest[0]))
        pattern.bits = toRange(rest);
    else
        pattern.form = rest;
    return pattern;
}

struct ItemName
{
    static constexpr std::size_t kCapacity = 28;

    std::array<char, kCapacity> text{};
    std::uint8_t size = 0;

    constexpr operator std::string_view() const { return {text.data(), size}; }

    constexpr ItemName& operator+=(std::string_view more)
    {
        for (const char c : more)
            text[size++] = c;
        return *this;
    }

    constexpr ItemName& operator+=(int number)
    {
        if (number >= 10)
            *this += number / 10;
        text[size++] = static_cast<char>('0' + number % 10);
        return *this;
    }
};

// Calls visit(element, name, bit or -1) for each item that the words of one row name.
template <class Visit>
constexpr void forEachName(std::string_view words, Visit visit)
{
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        const ItemPattern pattern = toPattern(words.substr(0, end));
        words = words.substr(std::min(end + 1, words.size()));
        const NumberRange numbers = pattern.numbers.value_or(NumberRange{0, 0});
        const NumberRange bits = pattern.bits.value_or(NumberRange{-1, -1});
        for (int number = numbers.first; number <= numbers.last; ++number) {
            ItemName element;
            element += pattern.stem;
            if (pattern.numbers)
                element += number;
            for (int bit = bits.first; bit <= bits.last; ++bit) {
                ItemName name = element;
                if (bit >= 0) {
                    name += ".";
                    name += bit;
                } else if (!pattern.form.empty()) {
                    name += ".";
                    name += pattern.form;
                }
                visit(std::string_view(element), name, bit);
            }
        }
    }
}

} // namespace vlk::items
