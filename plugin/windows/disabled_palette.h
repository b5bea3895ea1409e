#pragma once

// Disabled text that can still be read: halfway between the text and what it stands on, whatever the style
// makes of it.

#include <QPalette>

class QWidget;

namespace vlk {

QPalette withReadableDisabledText(QPalette palette);

// For a window and all that is in it, now and whenever the application's colours change.
void keepDisabledTextReadable(QWidget* window);

} // namespace vlk
