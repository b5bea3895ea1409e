#pragma once

// A flag: 0 or 1, or 0 and `on`.

#include "settings/kinds/row.h"

namespace vlk {

struct Flag : ShownOf<Flag>
{
    int load = 0;
    int reset = 0;
    int on = 1;            // other than 1: only this value is on
    bool inverted = false; // the box is checked for 0

    constexpr Flag onValue(int value) const { return with(&Flag::on, value); }
    constexpr Flag checkedForZero() const { return with(&Flag::inverted, true); }
};

constexpr Flag flag(const char* key, int loadDefault)
{
    return keyed<Flag>(key, loadDefault);
}

QString normalised(const Flag& row, const Reading& reading);

} // namespace vlk
