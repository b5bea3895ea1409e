#pragma once

class QWidget;

namespace vlk {

// While the widget is disabled its tool tip says why, in the language in use.
void tellWhyDisabled(QWidget* widget, const char* textKey);

} // namespace vlk
