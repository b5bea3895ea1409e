#pragma once

// Line icons on a grid of 24, in the colour of the text on buttons, at any size and in any palette.

#include <QIcon>

namespace vlk {

enum class LinePath {
    Back,  // to an earlier time
    Begin, // of a row
    End,
    Plus,
};

QIcon pathIcon(LinePath path);

} // namespace vlk
