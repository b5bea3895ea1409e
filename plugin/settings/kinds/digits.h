#pragma once

// A string with a digit a position, over check boxes and lists.

#include "settings/kinds/choice.h"

namespace vlk {

// Without a widget it is always 0.
struct Position
{
    Name widget{};
    const char* caption = "";
    int top = 1; // largest digit
    Name box{};  // check box beside a list: unchecked is 0, whatever item the list has
};

struct Digits : ShownOf<Digits>
{
    const char* load = "";
    std::span<const Position> positions{};
    std::span<const Code> items{}; // of combo boxes: the item of each digit

    constexpr Digits listing(std::span<const Code> codes) const { return with(&Digits::items, codes); }
};

constexpr Digits digits(const char* key, const char* loadDefault, std::span<const Position> positions)
{
    return keyed<Digits>(key, loadDefault).with(&Digits::positions, positions);
}

constexpr void check(const Digits& row)
{
    if (std::string_view(row.load).size() > row.positions.size())
        throw "a default has more digits than there are positions";
    for (std::size_t i = 0; row.load[i]; ++i) {
        if (row.load[i] < '0' || row.load[i] - '0' > row.positions[i].top)
            throw "a default has a digit that its position lacks";
    }
}

constexpr void eachBox(const Digits& row, auto take)
{
    for (const Position& position : row.positions)
        take(position.widget), take(position.box);
}

QString normalised(const Digits& row, const Reading& reading);

} // namespace vlk
