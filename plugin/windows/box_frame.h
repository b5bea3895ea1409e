#pragma once

// A line around a dialog that has no window frame, so that it stands out from the window below.

class QWidget;

namespace vlk {

// To be called from the dialog's paintEvent.
void paintBoxFrame(QWidget* dialog);

} // namespace vlk
