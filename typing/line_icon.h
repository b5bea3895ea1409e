#pragma once

// Line icons on a grid of 24, in the colour of the text on buttons, at any size and in any palette.

#include <QIcon>
#include <QPalette>

#include <functional>

namespace vlk {

// Draws an icon within a rectangle, in a colour: that of the text, paler where the icon is disabled.
using IconDrawing = std::function<void(QPainter& painter, const QRect& rect, const QColor& colour)>;

// `text`: on what the icon stands; on what is selected it has the colour of text there.
QIcon drawnIcon(IconDrawing drawing, QPalette::ColorRole text);

enum class LineIcon {
    Back,  // to an earlier time
    Begin, // of a row
    End,
    Plus,
    Up,
    Down,
    Cross,
    Undo,
    Redo,
    Differences,
    Advice,
};

QIcon lineIcon(LineIcon which);

} // namespace vlk
