#pragma once

class QWidget;

namespace vlk {

// Joins an entry to every box and line below a window: numbers, moments and texts.
void joinFields(QWidget* window);

} // namespace vlk
