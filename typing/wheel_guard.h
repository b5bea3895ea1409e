#pragma once

// The wheel scrolls what lies below and leaves boxes, lists and sliders alone that do not have the focus.

class QWidget;

namespace vlk {

void guardFromWheel(QWidget* window);

} // namespace vlk
