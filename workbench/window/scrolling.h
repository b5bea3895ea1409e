#pragma once

// Windows that fit whatever screen there is: contents that scroll, and sizes that stay within it.

#include <QPoint>
#include <QSize>

class QScrollArea;
class QWidget;

namespace workbench {

// The widget in an area without a frame that scrolls it where there is no room for it. It is made as wide as
// it needs, unless the screen is small.
QScrollArea* scrolling(QWidget* widget);

// The size that a window may have of the wanted one on a screen with so much room, its frame counted in.
QSize within(QSize wanted, QSize room);

// Gives a window that is about to show the wanted size, or as much of it as its screen has, and moves it into
// the screen.
void resizeWithin(QWidget* window, QSize wanted);

// Moves it to the place, or as near as it can be with the whole of it and its frame on the screen.
void moveWithin(QWidget* window, QPoint place);

} // namespace workbench
