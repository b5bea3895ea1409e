#pragma once

// How a table is made, at compile time: rows are checked, and the names in conditions and rules become rows.

#include "base/name_table.h"
#include "settings/rule.h"
#include "settings/setting.h"

namespace vlk::tables {

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

// The sorts of names in rows, each with what hands them to `take`. Elements are no values.
struct Paths
{
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
                take(pathHash(element->pathName(), element->numbers, base.pathName(), base.numbers));
        }
    }
};

struct Widgets
{
    static constexpr void each(std::span<const Setting> rows, auto take)
    {
        for (const Setting& row : rows)
            eachWidget(row, [&](auto... name) { take(widgetHash(name...)); });
    }
};

template <const auto& rows, class Sort>
constexpr auto namesIn()
{
    constexpr std::size_t count = [] {
        std::size_t found = 0;
        Sort::each(rows, [&](std::uint64_t) { ++found; });
        return found;
    }();
    const auto names = nameTable<count>([](auto take) { Sort::each(rows, take); });
    return isEachOnce(names) ? names : throw "a name stands twice";
}

// Finds the rows of paths.
struct Finder
{
    constexpr void operator()(Path& path) const
    {
        if (path && (path.row = rowOf(pathHash(path.form(), numbers, path.tail, numbers), names)) < 0)
            throw "no row has this path";
    }
    constexpr void operator()(When& when) const
    {
        operator()(static_cast<Path&>(when));
        if (!when.same)
            return;
        Path other(when.codes, when.tail);
        operator()(other);
        when.other = other.row;
    }
    constexpr void operator()(auto& all) const
    {
        for (auto& item : all)
            operator()(item);
    }

    NameTable names;
    Numbers numbers;
};

// Looks at rules: what they act on is of a kind that they can act on.
struct RuleFinder : Finder
{
    using Finder::operator();
    template <class... Kinds>
    constexpr void operator()(PathOf<Kinds...>& path) const
    {
        operator()(static_cast<Path&>(path));
        if (path && !(values[path.row]->template is<Kinds>() || ...))
            throw "a rule acts on a setting of another kind";
    }

    std::span<const Setting* const> values; // by row
};

constexpr void checkTargets(const Enable& rule, NameTable widgets)
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
    static constexpr auto kPaths = namesIn<source, Paths>();
    static constexpr auto kWidgets = namesIn<source, Widgets>();
    static constexpr auto kRows = [] {
        auto all = source;
        for (Setting& setting : all) {
            const Finder find{kPaths, setting.base().numbers};
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
    static constexpr auto kValues = [] {
        std::array<const Setting*, kPaths.size()> values{};
        for (std::size_t row = 0; const Setting& setting : kRows) {
            if (!setting.is<Group>())
                values[row++] = &setting;
        }
        return values;
    }();
};

template <const auto& source, const auto& given>
struct MadeRules
{
    static constexpr auto kRules = [] {
        auto all = given;
        for (auto& rule : all) {
            rule.eachPath(RuleFinder{{Made<source>::kPaths, rule.numbers}, Made<source>::kValues});
            if constexpr (requires { rule.listHash; }) {
                rule.listHash = hashOf(rule.list, rule.numbers);
                rule.holderHash = hashOf(rule.holder, rule.numbers);
            }
            if constexpr (requires { rule.targets; })
                checkTargets(rule, Made<source>::kWidgets);
        }
        return all;
    }();
};

} // namespace vlk::tables
