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

// False where one stands twice.
constexpr bool sortedNames(auto& names)
{
    std::sort(names.begin(), names.end());
    return std::adjacent_find(names.begin(), names.end()) == names.end();
}

constexpr std::uint64_t hashOf(const Path& path, Numbers numbers)
{
    return NameHash(numbers).add(path.element()).add("/").add(path.tail).value();
}

constexpr std::uint64_t hashOf(std::string_view form, std::string_view widget, Numbers numbers)
{
    // Forms of one class, one a number, have widgets of the same names.
    return NameHash(numbers, numbers.outer).add(form).add("/").add(widget).value();
}

// Rows that hold values; those of elements have no place among them.
template <std::size_t n>
constexpr std::size_t valueCount(const std::array<Setting, n>& rows)
{
    return static_cast<std::size_t>(
        std::count_if(rows.begin(), rows.end(), [](const Setting& row) { return !row.is<Group>(); }));
}

template <std::size_t count, std::size_t n>
constexpr auto pathsOf(const std::array<Setting, n>& rows)
{
    std::array<NamedRow, count> names{};
    std::size_t place = 0;
    const RowBase* element = nullptr;
    for (const Setting& row : rows) {
        const RowBase& base = row.base();
        if (row.is<Group>()) {
            element = &base;
            continue;
        }
        if (!element)
            throw "a key stands in no element";
        const std::uint64_t above = NameHash(element->numbers).add(element->pathName()).value();
        names[place] = {NameHash(base.numbers, above).add("/").add(base.pathName()).value(),
                        static_cast<std::int16_t>(place)};
        ++place;
    }
    return sortedNames(names) ? names : throw "a path stands twice";
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

template <std::size_t n>
constexpr std::size_t widgetCount(const std::array<Setting, n>& rows)
{
    std::size_t count = 0;
    for (const Setting& row : rows)
        eachWidget(row, [&](auto...) { ++count; });
    return count;
}

template <std::size_t count, std::size_t n>
constexpr auto widgetsOf(const std::array<Setting, n>& rows)
{
    std::array<std::uint64_t, count> names{};
    std::size_t place = 0;
    for (const Setting& row : rows)
        eachWidget(row, [&](auto form, auto widget, Numbers numbers) {
            names[place++] = hashOf(form, widget, numbers);
        });
    return sortedNames(names) ? names : throw "an object name stands twice";
}

template <std::size_t n>
constexpr bool checked(const std::array<Setting, n>& rows)
{
    for (const Setting& row : rows)
        std::visit(
            [](const auto& kind) {
                if constexpr (requires { check(kind); })
                    check(kind);
            },
            row.kind);
    return true;
}

// Finds the rows of paths.
template <std::size_t count>
class Finder
{
public:
    constexpr Finder(const std::array<NamedRow, count>& names, Numbers numbers)
        : names_(names), numbers_(numbers)
    {
    }

    constexpr void operator()(Path& path) const
    {
        if (path)
            path.row = find(path);
    }
    constexpr void operator()(When& when) const
    {
        operator()(static_cast<Path&>(when));
        if (when && when.same)
            when.other = find(Path(when.codes, when.tail));
    }
    template <class Item, std::size_t n>
    constexpr void operator()(std::array<Item, n>& all) const
    {
        for (Item& item : all)
            operator()(item);
    }

private:
    constexpr std::int16_t find(const Path& path) const
    {
        const NamedRow wanted{hashOf(path, numbers_)};
        const auto found = std::lower_bound(names_.begin(), names_.end(), wanted);
        return found != names_.end() && found->name == wanted.name ? found->row
                                                                   : throw "no row has this path";
    }

    const std::array<NamedRow, count>& names_;
    Numbers numbers_;
};

constexpr void findIn(Setting& setting, const auto& find)
{
    std::visit([&](auto& row) { find(row.present); }, setting.kind);
    if (auto* group = std::get_if<Group>(&setting.kind)) {
        find(group->presentToo);
        find(group->readable);
        find(group->readableToo);
    } else if (auto* link = std::get_if<Link>(&setting.kind)) {
        find(link->target);
    }
}

template <std::size_t n>
constexpr void checkTargets(const Enable& rule, const std::array<std::uint64_t, n>& widgets)
{
    std::string_view names(rule.targets.names);
    while (!rule.targets.areParts && !names.empty()) {
        const std::size_t end = std::min(names.find(' '), names.size());
        if (!std::binary_search(widgets.begin(), widgets.end(),
                                hashOf(rule.targets.form, names.substr(0, end), rule.numbers)))
            throw "no row has this widget";
        names.remove_prefix(std::min(end + 1, names.size()));
    }
}

// The rows of a table with the rows of their conditions found.
template <const auto& source>
struct Made
{
    static_assert(checked(source));
    static constexpr auto paths = pathsOf<valueCount(source)>(source);
    static constexpr auto widgets = widgetsOf<widgetCount(source)>(source);
    static constexpr auto rows = [] {
        auto all = source;
        for (Setting& row : all)
            findIn(row, Finder(paths, row.base().numbers));
        return all;
    }();
};

template <const auto& source, const auto& given>
struct MadeRules
{
    static constexpr auto rules = [] {
        auto all = given;
        for (auto& rule : all) {
            rule.eachPath(Finder(Made<source>::paths, rule.numbers));
            if constexpr (requires { rule.targets; })
                checkTargets(rule, Made<source>::widgets);
        }
        return all;
    }();
};

} // namespace vlk::tables
