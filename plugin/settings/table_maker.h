#pragma once

// How a table is made, at compile time: rows are checked, and the names in conditions and rules become rows.
// Names are compared by their hashes, sorted once, so that the largest table stays within what compilers
// evaluate.

#include "settings/rule.h"
#include "settings/setting.h"

#include <algorithm>
#include <array>

namespace vlk::tables {

struct NamedRow
{
    std::uint64_t name = 0;
    std::int16_t row = -1;
    constexpr bool operator<(const NamedRow& other) const { return name < other.name; }
    constexpr bool operator==(const NamedRow& other) const { return name == other.name; }
};

using Names = std::span<const NamedRow>; // sorted

// The row of a name; -1 where there is none.
constexpr std::int16_t rowOf(std::uint64_t name, Names names)
{
    const auto found = std::lower_bound(names.begin(), names.end(), NamedRow{name});
    return found != names.end() && found->name == name ? found->row : std::int16_t{-1};
}

// Hands the path of every value to `take`. Elements are no values.
struct Paths
{
    static constexpr bool requireUnique(bool unique) { return unique ? true : throw "a path stands twice"; }

    static constexpr void each(std::span<const Setting> rows, auto take)
    {
        const RowBase* element = nullptr;
        for (const Setting& row : rows) {
            const RowBase& base = row.base();
            if (row.is<Group>())
                element = &base;
            else if (!element)
                throw "a key stands in no element";
            else
                take(hashOf(base.pathName(), base.numbers,
                            hashOf("/", {}, hashOf(element->pathName(), element->numbers))));
        }
    }
};

// Hands every widget that a row names to `take`, as form, widget, and numbers.
constexpr void eachWidget(const Setting& row, auto take)
{
    const Numbers numbers = row.base().numbers;
    const auto one = [&](const Name& name) {
        if (name)
            take(name.form(), std::string_view(name.tail), numbers);
    };
    if (const Shown* shown = row.shown(); shown && shown->column == 0)
        one(shown->widget);
    std::visit(
        [&](const auto& kind) {
            if constexpr (requires { kind.companion; }) {
                if (kind.companion)
                    take(kind.widget.form(), std::string_view(kind.companion), numbers);
            }
            if constexpr (requires { eachBox(kind, one); })
                eachBox(kind, one);
        },
        row.kind);
}

constexpr std::uint64_t widgetHash(std::string_view form, std::string_view widget, Numbers numbers)
{
    // Forms of one class, one a number, have widgets of the same names.
    return hashOf(widget, numbers, hashOf("/", {}, hashOf(form, numbers, numbers.outer)));
}

struct Widgets
{
    static constexpr bool requireUnique(bool unique)
    {
        return unique ? true : throw "an object name stands twice";
    }

    static constexpr void each(std::span<const Setting> rows, auto take)
    {
        for (const Setting& row : rows)
            eachWidget(row, [&](auto... name) { take(widgetHash(name...)); });
    }
};

// The names of one sort in rows.
template <const auto& rows, class Sort>
constexpr auto namesIn()
{
    constexpr std::size_t count = [] {
        std::size_t found = 0;
        Sort::each(rows, [&](std::uint64_t) { ++found; });
        return found;
    }();
    std::array<NamedRow, count> names{};
    std::int16_t place = 0;
    Sort::each(rows, [&](std::uint64_t name) { names[place] = {name, place}, ++place; });
    std::sort(names.begin(), names.end());
    Sort::requireUnique(std::adjacent_find(names.begin(), names.end()) == names.end());
    return names;
}

// Finds the rows of paths.
struct Finder
{
    constexpr void operator()(Path& path) const
    {
        if (path && (path.row = find(path)) < 0)
            throw "no row has this path";
    }
    constexpr void operator()(When& when) const
    {
        operator()(static_cast<Path&>(when));
        if (when && when.same && (when.other = find(Path(when.codes, when.tail))) < 0)
            throw "no row has this path";
    }
    constexpr void operator()(auto& all) const
    {
        for (auto& item : all)
            operator()(item);
    }
    constexpr std::int16_t find(const Path& path) const
    {
        return rowOf(hashOf(path.tail, numbers, hashOf("/", {}, hashOf(path.form(), numbers))), names);
    }

    Names names;
    Numbers numbers;
};

constexpr void checkTargets(const Enable& rule, Names widgets)
{
    std::string_view names(rule.targets.tail);
    while (!rule.targets.areParts && !names.empty()) {
        const std::size_t end = std::min(names.find(' '), names.size());
        if (rowOf(widgetHash(rule.targets.form(), names.substr(0, end), rule.numbers), widgets) < 0)
            throw "no row has this widget";
        names.remove_prefix(std::min(end + 1, names.size()));
    }
}

// The rows of a table, checked, with the rows of their conditions found.
template <const auto& source>
struct Made
{
    static constexpr auto paths = namesIn<source, Paths>();
    static constexpr auto widgets = namesIn<source, Widgets>();
    static constexpr auto rows = [] {
        auto all = source;
        for (Setting& setting : all) {
            const Finder find{paths, setting.base().numbers};
            std::visit(
                [&](auto& row) {
                    if constexpr (requires { check(row); })
                        check(row);
                    find(row.present);
                    if constexpr (requires { row.eachPath(find); })
                        row.eachPath(find);
                },
                setting.kind);
        }
        return all;
    }();
};

template <const auto& source, const auto& given>
struct MadeRules
{
    static constexpr auto rules = [] {
        auto all = given;
        for (auto& rule : all) {
            rule.eachPath(Finder{Made<source>::paths, rule.numbers});
            if constexpr (requires { rule.targets; })
                checkTargets(rule, Made<source>::widgets);
        }
        return all;
    }();
};

} // namespace vlk::tables
