#pragma once

// Seconds over several boxes, from the largest unit down.

#include "settings/kinds/row.h"

#include <span>

namespace vlk {

struct PeriodPart
{
    Name widget;
    int seconds; // of one unit
    int least;
    int most;
    const char* unit;
};

struct Period : ShownOf<Period>
{
    int load = 0;
    std::span<const PeriodPart> parts{};
    int least = 0; // seconds
    int wrap = 0;  // a read drops what is beyond so many seconds

    constexpr Period atLeast(int seconds) const { return with(&Period::least, seconds); }
    constexpr Period wrapping(int seconds) const { return with(&Period::wrap, seconds); }
};

constexpr Period period(const char* key, int loadDefault, std::span<const PeriodPart> parts)
{
    return keyed<Period>(key, loadDefault).with(&Period::parts, parts);
}

constexpr void check(const Period& row)
{
    if (row.parts.empty())
        throw "a period has no boxes";
    if (row.load < row.least)
        throw "a default is outside its range";
}

constexpr void eachBox(const Period& row, auto take)
{
    for (const PeriodPart& part : row.parts)
        take(part.widget);
}

QString normalised(const Period& row, const Reading& reading);

} // namespace vlk
