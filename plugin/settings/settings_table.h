#pragma once

// The settings of one page: its section of the file, its rows in the order of the file, and its rules. A
// table over several sections has an empty name and begins its paths with theirs ("TRACK/POINTS/angle").
//
//     constexpr auto kRows = rowsOf(group("POINTS"), ...);
//     constexpr auto kSets = rulesOf(onEdit(...), ...);
//     constexpr SettingsTable kTrackSettings = tableOf<kRows, kSets>("TRACK");
//
// tableOf() refuses at compile time what is wrong (table_maker.h): a default outside its range or choices, a
// path or an object name twice, a rule whose path or widget no row has.

#include "settings/table_maker.h"

#include <algorithm>
#include <utility>

namespace vlk {

struct SettingsTable
{
    const char* section = "";
    bool emptied = true; // a save empties the section first
    std::span<const Setting> rows{};
    std::span<const Sets> sets{};
    std::span<const Distance> distances{};
    std::span<const RangeWhen> ranges{};
    std::span<const ExclusiveChoice> exclusives{};
    std::span<const Presets> presets{};
    std::span<const MaskPositions> masks{};
    std::span<const Doubt> doubts{};
    std::span<const Enable> enables{};

    constexpr void take(std::span<const Sets> rules) { sets = rules; }
    constexpr void take(std::span<const Distance> rules) { distances = rules; }
    constexpr void take(std::span<const RangeWhen> rules) { ranges = rules; }
    constexpr void take(std::span<const ExclusiveChoice> rules) { exclusives = rules; }
    constexpr void take(std::span<const Presets> rules) { presets = rules; }
    constexpr void take(std::span<const MaskPositions> rules) { masks = rules; }
    constexpr void take(std::span<const Doubt> rules) { doubts = rules; }
    constexpr void take(std::span<const Enable> rules) { enables = rules; }
};

namespace tables {

template <class Item, std::size_t n>
constexpr std::array<Item, n> listOf(const std::array<Item, n>& items)
{
    return items;
}

template <class Item>
constexpr auto listOf(const Item& item)
{
    if constexpr (std::is_base_of_v<RowBase, Item>)
        return std::array<Setting, 1>{item};
    else
        return std::array<Item, 1>{item};
}

template <class Item, std::size_t... sizes>
constexpr auto joined(const std::array<Item, sizes>&... lists)
{
    std::array<Item, (sizes + ... + 0)> all{};
    auto place = all.begin();
    ((place = std::copy(lists.begin(), lists.end(), place)), ...);
    return all;
}

// Items and arrays of them in one array.
constexpr auto join(const auto&... items)
{
    return joined(listOf(items)...);
}

constexpr Numbers& numbersOf(Setting& setting)
{
    return std::visit([](auto& row) -> Numbers& { return row.numbers; }, setting.kind);
}
constexpr Numbers& numbersOf(auto& rule)
{
    return rule.numbers;
}

} // namespace tables

// Rows and arrays of rows in one array.
constexpr auto rowsOf(const auto&... rows)
{
    return tables::join(rows...);
}

// Rules of one kind and arrays of them in one array.
constexpr auto rulesOf(const auto&... rules)
{
    return tables::join(rules...);
}

// Rows or rules that belong to repetition `number`, for repetitions that differ. What is repeated inside has
// that number as its inner one.
template <class Item, std::size_t n>
constexpr auto numbered(std::array<Item, n> items, int number)
{
    for (Item& item : items) {
        Numbers& numbers = tables::numbersOf(item);
        numbers = {static_cast<std::uint8_t>(number), numbers.outer};
    }
    return items;
}

// What `make(number)` gives for 1 to `count`, each with its number. For rows and rules alike.
template <int count, class Make>
constexpr auto repeat(Make make)
{
    return [&]<std::size_t... i>(std::index_sequence<i...>)
    {
        return tables::joined(
            numbered(tables::listOf(make(static_cast<int>(i) + 1)), static_cast<int>(i) + 1)...);
    }
    (std::make_index_sequence<count>());
}

template <const auto& rows, const auto&... rules>
constexpr SettingsTable tableOf(const char* section)
{
    SettingsTable table{.section = section, .rows = tables::Made<rows>::rows};
    (table.take(tables::MadeRules<rows, rules>::rules), ...);
    return table;
}

// A save leaves what else the section holds.
template <const auto& rows, const auto&... rules>
constexpr SettingsTable tableOver(const char* section)
{
    SettingsTable table = tableOf<rows, rules...>(section);
    table.emptied = false;
    return table;
}

} // namespace vlk
