#pragma once

// Whether settings have the paths of advice, at compile time: static_assert(kArePathsKnown<kRules>).

#include "base/name_table.h"
#include "review/advice_rule.h"
#include "settings/accel_rows.h"
#include "settings/bluetooth_rows.h"
#include "settings/data_set_rows.h"
#include "settings/lines_in_rows.h"
#include "settings/lines_out_rows.h"
#include "settings/rs_rows.h"
#include "settings/system_rows.h"
#include "settings/temperature_rows.h"
#include "settings/track_rows.h"
#include "settings/transfer_rows.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vlk::review::advice {

template <const auto& rows>
inline constexpr auto kNamesOf = tables::namesIn<rows, tables::Paths>();

struct Section
{
    std::string_view name;
    NameTable paths;
};

inline constexpr Section kSections[] = {
    {transfer::kSection, kNamesOf<transfer::kRows>},
    {data_set::kSection, kNamesOf<data_set::kRows>},
    {track::kSection, kNamesOf<track::kRows>},
    {system::kSection, kNamesOf<system::kRows>},
    {rs::kSection, kNamesOf<rs::kRows>},
    {lines_in::kSection, kNamesOf<lines_in::kRows>},
    {temperature::kSection, kNamesOf<temperature::kRows>},
    {accel::kSection, kNamesOf<accel::kRows>},
    {lines_out::kSection, kNamesOf<lines_out::kRows>},
    {bluetooth::kSection, kNamesOf<bluetooth::kRows>},
};

constexpr bool isKnown(std::string_view path, Numbers numbers)
{
    for (const auto& [name, paths] : kSections) {
        if (path.starts_with(name) && path.substr(name.size()).starts_with('/'))
            return rowOf(hashOf(path.substr(name.size() + 1), numbers), paths) >= 0;
    }
    return false;
}

// With all numbers up to these; a path that holds none is looked for once.
constexpr bool isKnownTo(const char* text, int outer, int inner)
{
    const std::string_view path(text ? text : "");
    const int lastOuter = path.find("%1") == path.npos ? 0 : outer;
    const int lastInner = path.find("%2") == path.npos ? 0 : inner;
    for (int first = std::min(1, lastOuter); text && first <= lastOuter; ++first) {
        for (int second = std::min(1, lastInner); second <= lastInner; ++second) {
            if (!isKnown(path, {static_cast<std::uint8_t>(first), static_cast<std::uint8_t>(second)}))
                return false;
        }
    }
    return true;
}

constexpr bool arePathsOf(const Rule& rule)
{
    const auto known = [&](const char* path) { return isKnownTo(path, rule.outer, rule.inner); };
    const auto isOfCondition = [&](const Condition& condition) {
        const bool isOne = condition.over == Condition::Over::One;
        return condition.test == Condition::Test::Unread ||
               (isKnownTo(condition.path, rule.outer, isOne ? rule.inner : condition.count) &&
                known(condition.other));
    };
    // What no setting reads is no path of one.
    const auto isOfArgument = [&](const Argument& argument) {
        return argument.kind == Argument::Kind::Unread || known(argument.path);
    };
    const auto isOfMending = [&](const Mending& mending) { return known(mending.path); };
    return std::ranges::all_of(rule.all, isOfCondition) && std::ranges::all_of(rule.any, isOfCondition) &&
           std::ranges::all_of(rule.names, known) && std::ranges::all_of(rule.arguments, isOfArgument) &&
           std::ranges::all_of(rule.mendings, isOfMending);
}

// Rule by rule: compilers bound what one evaluation may take.
template <const auto& rules, std::size_t i>
inline constexpr bool kArePathsKnownAt = arePathsOf(rules[i]) ? true
                                                              : throw "no setting has a path of the rule";

template <const auto& rules>
inline constexpr bool kArePathsKnown = []<std::size_t... i>(std::index_sequence<i...>)
{
    return (kArePathsKnownAt<rules, i> && ...);
}
(std::make_index_sequence<std::size(rules)>());

} // namespace vlk::review::advice
