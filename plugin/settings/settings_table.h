#pragma once

// The settings of one page: its section of the file, its rows in the order of the file, and its rules. A
// table over several sections has an empty name and begins its paths with theirs ("TRACK/POINTS/angle").
//
//     constexpr Heading kAlways{"cfgt3_002"};
//     constexpr auto kRows = rowsOf(group("POINTS"), kAlways, flag(...), integer(...), ...);
//     constexpr auto kSets = rulesOf(onEdit(...), ...);
//     constexpr SettingsTable kTrackSettings = tableOf<kRows, kSets>("TRACK", "cfgt3_001");
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
    const char* title = ""; // of the page, a translation key
    bool emptied = true;    // a save empties the section first
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
    if constexpr (std::is_same_v<Heading, Item>)
        return std::array<Setting, 0>{};
    else if constexpr (std::is_base_of_v<RowBase, Item>)
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

constexpr RowBase& baseOf(Setting& setting)
{
    return std::visit([](auto& row) -> RowBase& { return row; }, setting.kind);
}
constexpr Numbers& numbersOf(Setting& setting)
{
    return baseOf(setting).numbers;
}
constexpr Numbers& numbersOf(auto& rule)
{
    return rule.numbers;
}

// What an item of a list of rows is: a heading, or rows that take the one before them.
template <class Item>
constexpr void takeHeading(const Item& item, auto& row, const Heading*& heading)
{
    if constexpr (std::is_same_v<Heading, Item>) {
        heading = &item;
    } else {
        for (std::size_t i = 0; i < listOf(item).size(); ++i, ++row) {
            if (const Heading*& own = baseOf(*row).heading; !own)
                own = heading;
        }
    }
}

} // namespace tables

// Rows and arrays of rows in one array. A heading counts for what stands behind it up to the next one, save
// for rows that have one already.
constexpr auto rowsOf(const auto&... items)
{
    auto all = tables::join(items...);
    auto row = all.begin();
    const Heading* heading = nullptr;
    (tables::takeHeading(items, row, heading), ...);
    return all;
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
constexpr SettingsTable tableOf(const char* section, const char* title = "")
{
    SettingsTable table{.section = section, .title = title, .rows = tables::Made<rows>::rows};
    (table.take(tables::MadeRules<rows, rules>::rules), ...);
    return table;
}

// A save leaves what else the section holds.
template <const auto& rows, const auto&... rules>
constexpr SettingsTable tableOver(const char* section, const char* title = "")
{
    SettingsTable table = tableOf<rows, rules...>(section, title);
    table.emptied = false;
    return table;
}

} // namespace vlk
