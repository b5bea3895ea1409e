#pragma once

// An item is one thing of a record that can be shown: an element, a bit of it, or one of its further texts.
// item_rows.h lists them with their rules; whatever shows values is a table of items and calls
// text(page, item) of item_text.h.
//
//     item("NaviSpeed"), item("State.5"), item("State.mode")    a name that does not exist does not compile
//     item("Temp1") + n                                         the n-th item behind Temp1
//     kItems[item].element                                      the element, and by it the mask bit

#include "telemetry/text/item_names.h"
#include "telemetry/text/item_rows.h"

namespace vlk {

// Position of an item in kItems.
enum ItemIndex : std::uint16_t {};

constexpr ItemIndex operator+(ItemIndex first, std::integral auto steps)
{
    return static_cast<ItemIndex>(static_cast<int>(first) + static_cast<int>(steps));
}

struct Item
{
    items::ItemName name;
    std::uint8_t row = 0; // in items::kItemRows
    std::uint8_t bit = 0; // that the name gives
    ElementIndex element{};

    constexpr const Rule& rule() const { return items::kItemRows[row].rule; }
};

// What the number of the item measures under that rule, one of the item's.
constexpr const Measure& measureOf(const Item& item, const Rule& rule)
{
    return rule.measure ? *rule.measure : kElements[item.element].measure;
}

inline constexpr int kItemCount = [] {
    int count = 0;
    for (const items::ItemRow& row : items::kItemRows)
        items::forEachName(row.items, [&](std::string_view, const items::ItemName&, int) { ++count; });
    return count;
}();

static_assert(std::size(items::kItemRows) <= 256);

inline constexpr std::array<Item, kItemCount> kItems = [] {
    std::array<Item, kItemCount> all{};
    int count = 0;
    int element = 0; // rows follow the catalogue in runs, so the search goes on where it ended
    for (std::size_t row = 0; row < std::size(items::kItemRows); ++row) {
        const auto add = [&](std::string_view elementName, const items::ItemName& name, int bit) {
            int steps = 0;
            while (kElements[element].name != elementName) {
                element = (element + 1) % kElementCount;
                if (++steps > kElementCount)
                    throw "an item names an element that the catalogue does not have";
            }
            all[count++] = {name, static_cast<std::uint8_t>(row), static_cast<std::uint8_t>(std::max(bit, 0)),
                            static_cast<ElementIndex>(element)};
        };
        items::forEachName(items::kItemRows[row].items, add);
    }
    return all;
}();

// The item of that name, at compile time.
consteval ItemIndex item(std::string_view name)
{
    for (int i = 0; i < kItemCount; ++i) {
        if (kItems[i].name == name)
            return static_cast<ItemIndex>(i);
    }
    throw "there is no item of this name";
}

} // namespace vlk
