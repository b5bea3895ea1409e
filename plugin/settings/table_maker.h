#pragma once

// How a table is made, at compile time: rows are checked, and the names in conditions and rules become rows.

#include "base/name_table.h"
#include "settings/rule.h"
#include "settings/setting.h"

namespace vlk::tables {

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

// Finds the rows of paths, and looks at what rules say of them: that they are of a kind that these can act
// on, and that they can have the values that these name.
struct Finder
{
    constexpr void operator()(Path& path) const
    {
        if (path && (path.row = rowOf(pathHash(path.form(), numbers, path.tail, numbers), names)) < 0)
            throw "no row has this path";
    }
    template <class... Kinds>
    constexpr void operator()(PathOf<Kinds...>& path) const
    {
        operator()(static_cast<Path&>(path));
        if (path && !(values[path.row]->template is<Kinds>() || ...))
            throw "a rule acts on a setting of another kind";
    }
    constexpr void operator()(When& when) const
    {
        operator()(static_cast<Path&>(when));
        if (!when.same)
            return checkValues(when, when.codes);
        Path other(when.codes, when.tail);
        operator()(other);
        when.other = other.row;
    }
    constexpr void operator()(auto& all) const
    {
        for (auto& item : all)
            operator()(item);
    }
    constexpr void checkValues(const Path& path, const char* list) const
    {
        eachName(values.empty() || path.row < 0 || !list ? "" : list, '|',
                 [&](std::string_view value) { checkValue(*values[path.row], value); });
    }

    NameTable names;
    Numbers numbers;
    std::span<const Setting* const> values; // by row; empty while rows are made
};

// The rows of a table, checked, with the rows of their conditions found.
template <const auto& source>
struct Made
{
    static constexpr auto kPaths = namesIn<source, Paths>();
    static constexpr auto kWidgets = namesIn<source, Widgets>();
    static constexpr auto kRows = [] {
        auto all = source;
        for (Setting& setting : all) {
            const Finder find{kPaths, setting.base().numbers, {}};
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
            const Finder find{Made<source>::kPaths, rule.numbers, Made<source>::kValues};
            rule.eachPath(find);
            if constexpr (requires { rule.eachValue(find); })
                rule.eachValue([&](const auto&... item) { find.checkValues(item...); });
            if constexpr (requires { rule.startsOver; }) {
                if (!find.values[rule.path.row]->number() == !rule.offers || rule.least > rule.most)
                    throw "a rule gives a range of another kind";
            }
            if constexpr (requires { rule.listHash; }) {
                rule.listHash = hashOf(rule.list, rule.numbers);
                rule.holderHash = hashOf(rule.holder, rule.numbers);
            }
            if constexpr (requires { rule.targets; }) {
                eachName(rule.targets.areParts ? "" : rule.targets.tail, ' ', [&](std::string_view name) {
                    const auto hash = widgetHash(rule.targets.form(), name, rule.numbers);
                    if (rowOf(hash, Made<source>::kWidgets) < 0)
                        throw "no row has this widget";
                });
            }
        }
        return all;
    }();
};

} // namespace vlk::tables
