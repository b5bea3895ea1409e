#pragma once

// First sizes of windows.

#include <QSize>

class QWidget;

namespace vlk {

// Resizes a window, but no larger than the screen has room for with the window's frame.
void fitToScreen(QWidget* window, QSize wanted);

} // namespace vlk
