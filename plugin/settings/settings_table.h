#pragma once

// The settings of one page: its section of the file, its rows in the order of the file, and its rules. A
// table over several sections has an empty name and begins its paths with theirs ("TRACK/POINTS/angle").
// Tables are constexpr; rowsOf() refuses at compile time what is wrong in them: a default outside its range
// or choices, a path or an object name twice, two groups of one name side by side.

#include "settings/rule.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace vlk {

struct SettingsTable
{
    const char* section = "";
    std::span<const Setting> rows{};
    std::span<const Pull> pulls{};
    std::span<const Bound> bounds{};
    std::span<const Distance> distances{};
    std::span<const RangeWhen> ranges{};
    std::span<const Sole> soles{};
    std::span<const Presets> presets{};
    std::span<const Derived> derived{};
    std::span<const MaskPositions> masks{};
    std::span<const Doubt> doubts{};
    std::span<const Enable> enables{};
    bool emptied = true; // a save empties the section first
};

namespace tables {

template <class Row, std::size_t n>
constexpr std::array<Row, n> listOf(const std::array<Row, n>& rows)
{
    return rows;
}

template <class Row>
constexpr std::array<Row, 1> listOf(const Row& row)
{
    return {row};
}

template <class Row, std::size_t first, std::size_t second>
constexpr auto joined(const std::array<Row, first>& a, const std::array<Row, second>& b)
{
    std::array<Row, first + second> all{};
    std::copy(a.begin(), a.end(), all.begin());
    std::copy(b.begin(), b.end(), all.begin() + first);
    return all;
}

template <class First, class... More>
constexpr auto join(const First& first, const More&... more)
{
    if constexpr (sizeof...(More) == 0)
        return listOf(first);
    else
        return joined(listOf(first), join(more...));
}

constexpr bool same(const char* a, const char* b)
{
    return std::string_view(a ? a : "") == std::string_view(b ? b : "");
}

constexpr bool sameNumber(const Setting& a, const Setting& b)
{
    return a.number == b.number && a.inner == b.inner;
}

constexpr bool knownCode(const Setting& row, const char* code)
{
    return std::any_of(row.codes.begin(), row.codes.end(),
                       [code](const Code& known) { return same(known.code, code); });
}

constexpr bool inRange(const Setting& row, double value)
{
    return (row.zeroIsOff && value == 0) ||
           (value >= row.least * row.factor && value <= row.most * row.factor);
}

// Whether the fields of a mask lie inside it and share no position.
constexpr bool fieldsFit(const Setting& row)
{
    std::array<bool, 256> taken{};
    for (const MaskField& field : row.fields) {
        for (std::size_t i = 0; i < field.count; ++i) {
            if (field.positions[i] >= row.maxLength || taken[field.positions[i]])
                return false;
            taken[field.positions[i]] = true;
        }
    }
    return true;
}

constexpr void check(const Setting& row)
{
    const bool own = row.resets == Setting::Reset::toOwn;
    if (row.kind == Kind::integer || row.kind == Kind::real || row.kind == Kind::scaled) {
        if (row.least > row.most)
            throw "a range is upside down";
        if (!inRange(row, row.loadNumber) || (own && !row.resetText.format && !inRange(row, row.resetNumber)))
            throw "a default is outside its range";
    }
    const auto isChoice = [&](const char* code) {
        return knownCode(row, code) || (row.none && same(row.none, code));
    };
    if (row.kind == Kind::choice &&
        (!isChoice(row.loadText.format) || (own && !isChoice(row.resetText.format)) ||
         (row.fallback && !isChoice(row.fallback))))
        throw "a default is none of the choices";
    if (row.kind == Kind::digits && std::string_view(row.loadText.format).size() > row.positions.size())
        throw "a default has more digits than there are positions";
    if (row.kind == Kind::mask &&
        std::string_view(row.loadText.format).size() > static_cast<std::size_t>(row.maxLength))
        throw "a default is longer than its mask";
    if (!fieldsFit(row))
        throw "a field of a mask lies outside it or on another one";
    if (row.kind == Kind::period && row.parts.empty())
        throw "a period has no boxes";
}

constexpr const char* pathName(const Setting& row)
{
    return row.name ? row.name : row.key;
}

// Compilers limit the steps of a constant expression, so names are compared by their hashes first.
constexpr std::uint32_t hashOf(const char* name, std::uint32_t seed)
{
    std::uint32_t hash = seed;
    for (; name && *name; ++name)
        hash = (hash ^ static_cast<std::uint8_t>(*name)) * 16777619U;
    return hash;
}

template <std::size_t n>
constexpr void checkAll(const std::array<Setting, n>& rows)
{
    std::array<std::uint32_t, n> keys{};
    std::array<std::uint32_t, n> widgets{};
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const Setting& row = rows[i];
        check(row);
        const std::uint32_t number = 2166136261U + row.number * 1024U + row.inner;
        if (row.kind == Kind::group)
            group = hashOf(pathName(row), number);
        keys[i] = row.kind == Kind::group ? group : hashOf(pathName(row), number ^ (group * 31U));
        if (row.widget && row.kind != Kind::link)
            widgets[i] = hashOf(row.widget, number + static_cast<std::uint32_t>(row.column) * 262144U);
    }
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = i + 1; j < n; ++j) {
            if (keys[i] == keys[j] && same(pathName(rows[i]), pathName(rows[j])) &&
                sameNumber(rows[i], rows[j]))
                throw "a path or a group stands twice";
            if (widgets[i] != 0 && widgets[i] == widgets[j] && same(rows[i].widget, rows[j].widget))
                throw "an object name stands twice";
        }
    }
}

} // namespace tables

// Rows and arrays of rows in one array, checked.
template <class... Rows>
constexpr auto rowsOf(const Rows&... rows)
{
    const auto all = tables::join(rows...);
    tables::checkAll(all);
    return all;
}

// Rules and arrays of rules in one array.
template <class... Rules>
constexpr auto rulesOf(const Rules&... rules)
{
    return tables::join(rules...);
}

// What `make(number)` gives for 1 to `count`, each row with its number; an array inside is repeated as a
// whole. For rows and rules alike.
template <int count, class Make>
constexpr auto repeat(Make make)
{
    constexpr auto one = [](const auto& made) { return tables::listOf(made); };
    using List = decltype(one(make(1)));
    constexpr std::size_t size = std::tuple_size_v<List>;
    std::array<typename List::value_type, size * count> all{};
    for (int number = 1; number <= count; ++number) {
        const List rows = one(make(number));
        for (std::size_t i = 0; i < size; ++i) {
            auto row = rows[i];
            row.inner = row.number;
            row.number = static_cast<std::uint8_t>(number);
            all[(static_cast<std::size_t>(number) - 1) * size + i] = row;
        }
    }
    return all;
}

// Rows or rules that belong to repetition `number`, for repetitions that differ.
template <class Row, std::size_t n>
constexpr auto numbered(std::array<Row, n> rows, int number)
{
    for (Row& row : rows)
        row.number = static_cast<std::uint8_t>(number);
    return rows;
}

} // namespace vlk
