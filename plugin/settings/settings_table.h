#pragma once

// The settings of one page: its section of the file, its rows in the order of the file, and its rules. A
// table over several sections has an empty name and begins its paths with theirs ("TRACK/POINTS/angle").
//
//     constexpr Heading kAlways{"cfgt3_002"};
//     constexpr auto kRows = rowsOf(
//         group("POINTS"), kAlways,
//         flag("useMaxSpeed", 0).in("Always_checkBox_MaxSpeed"),
//         integer("maxSpeed", 100).range(1, 180).unit("abbr_024").in("Always_spinBox_MaxSpeed_Value"));
//     constexpr auto kSets = rulesOf(onEdit(...), ...);
//     constexpr SettingsTable kTrackSettings = tableOf<kRows, kSets>("TRACK", "cfgt3_001");
//
// tableOf() refuses at compile time what is wrong (table_maker.h): a default outside its range or choices, a
// path or an object name twice, a rule whose path or widget no row has.

#include "base/joined.h"
#include "settings/table_maker.h"

#include <tuple>
#include <utility>

namespace vlk {

template <class... Rules>
using RuleLists = std::tuple<std::span<const Rules>...>;

struct SettingsTable
{
    const char* section = "";
    const char* title = ""; // of the page, a translation key
    std::span<const Setting> rows{};
    bool emptied = true; // a save empties the section first
    RuleLists<Sets, Distance, RangeWhen, ExclusiveChoice, Presets, Doubt, Enable> rules{};

    // The rules of one kind.
    template <class Rule>
    constexpr std::span<const Rule> all() const
    {
        return std::get<std::span<const Rule>>(rules);
    }
};

constexpr std::array<Setting, 1> listOf(const std::derived_from<RowBase> auto& row)
{
    return {row};
}
constexpr std::array<Setting, 0> listOf(const Heading&)
{
    return {};
}

// The numbers of a row or a rule.
constexpr Numbers& numbersOf(auto& item)
{
    if constexpr (requires { item.base(); })
        return item.base().numbers;
    else
        return item.numbers;
}

// Rows and arrays of rows in one array. A heading counts for what stands behind it up to the next one, save
// for rows that have one already.
constexpr auto rowsOf(const auto&... items)
{
    auto all = joinedLists(listOf(items)...);
    auto row = all.begin();
    const Heading* heading = nullptr;
    const auto take = [&]<class Item>(const Item& item) {
        if constexpr (std::is_same_v<Heading, Item>)
            heading = &item;
        for (std::size_t count = listOf(item).size(); count > 0; --count, ++row) {
            if (!row->base().heading)
                row->base().heading = heading;
        }
    };
    (take(items), ...);
    return all;
}

// Rules of one kind and arrays of them in one array.
constexpr auto rulesOf(const auto&... rules)
{
    return joined(rules...);
}

// Rows or rules that belong to repetition `number`, for repetitions that differ. What is repeated inside has
// that number as its inner one.
template <class Item, std::size_t n>
constexpr auto numbered(std::array<Item, n> items, int number)
{
    for (Item& item : items) {
        Numbers& numbers = numbersOf(item);
        numbers = {static_cast<std::uint8_t>(number), numbers.outer};
    }
    return items;
}

// What `make(number)` gives for 1 to `count`, each with its number. For rows and rules alike.
template <int count, class Make>
constexpr auto repeat(Make make)
{
    return [&]<int... i>(std::integer_sequence<int, i...>)
    {
        return joined(numbered(listOf(make(i + 1)), i + 1)...);
    }
    (std::make_integer_sequence<int, count>());
}

// A save of a table that does not empty its section leaves what else that holds.
template <const auto& rows, const auto&... rules>
constexpr SettingsTable tableOf(const char* section, const char* title = "", bool emptied = true)
{
    SettingsTable table{section, title, tables::Made<rows>::kRows, emptied};
    [[maybe_unused]] const auto take = [&]<class Rule, std::size_t n>(const std::array<Rule, n>& list) {
        std::get<std::span<const Rule>>(table.rules) = list;
    };
    (take(tables::MadeRules<rows, rules>::kRules), ...);
    return table;
}

template <const auto& rows, const auto&... rules>
constexpr SettingsTable tableOver(const char* section, const char* title = "")
{
    return tableOf<rows, rules...>(section, title, false);
}

} // namespace vlk
