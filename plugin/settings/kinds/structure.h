#pragma once

// Rows without a value of their own: the element that the rows behind it stand in, a text that is always the
// same, and a key whose value is that of another row.

#include "settings/kinds/row.h"

#include <array>
#include <concepts>
#include <optional>

namespace vlk {

// What a save does with an element: makes it anew, makes it anew unless none of its keys is written, or lays
// its keys over what it holds.
enum class ElementSave : std::uint8_t { Anew, AnewIfAny, KeepsOthers };

struct Group : RowOf<Group, RowBase>
{
    When presentToo{};
    // Read while both hold, whenever it is written; without them while it is written.
    std::optional<std::array<When, 2>> readable{};
    ElementSave save = ElementSave::Anew;

    constexpr void eachPath(auto visit)
    {
        visit(presentToo);
        if (readable)
            visit(*readable);
    }

    using RowOf::onlyWhen;
    constexpr Group onlyWhen(When condition, When too) const
    {
        return onlyWhen(condition).with(&Group::presentToo, too);
    }
    // Without a condition: always.
    constexpr Group readWhen(When condition = {}, When too = {}) const
    {
        return with(&Group::readable, std::array{condition, too});
    }
    constexpr Group atSave(ElementSave policy) const { return with(&Group::save, policy); }
};

// Read and ignored, no widget.
struct Constant : RowOf<Constant, RowBase>
{
    const char* load = "";
};

// Several elements keep one value, that of the row `target`.
struct Link : RowOf<Link, RowBase>
{
    Path target{};
    int load = 0;            // where the key is missing
    int withoutElement = -1; // where the whole element is; -1: the same

    constexpr void eachPath(auto visit) { visit(target); }

    constexpr Link ifNoElement(int value) const { return with(&Link::withoutElement, value); }
};

constexpr Group group(const char* path)
{
    return Group{}.with(&Group::key, path);
}

constexpr Constant constant(const char* key, const char* text)
{
    return keyed<Constant>(key, text);
}

// A missing key is worth `loadDefault`.
constexpr Link link(const char* key, Path target, int loadDefault)
{
    return keyed<Link>(key, loadDefault).with(&Link::target, target);
}

template <class Row>
concept IsStructure = std::derived_from<Row, RowBase> && !std::derived_from<Row, Shown>;

// Nothing reads a value into them.
template <IsStructure Row>
QString normalised(const Row&, const Reading& reading)
{
    return reading.before;
}

} // namespace vlk
