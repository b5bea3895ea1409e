#pragma once

// Line icons on a grid of 24, in the colour of the text on buttons, at any size and in any palette.

#include <QIcon>

namespace vlk {

enum class LineIcon {
    back,  // to an earlier time
    begin, // of a row
    end,
    plus,
    up,
    down,
};

QIcon lineIcon(LineIcon which);

} // namespace vlk
