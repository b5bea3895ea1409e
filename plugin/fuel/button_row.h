#pragma once

// The row of buttons at the bottom of a window.

class QLayout;

namespace vlk {

// On a screen that has no room for more the buttons keep their captions and lose what is around them. To be
// called again after a change of texts.
void keepCaptions(const QLayout* row);

} // namespace vlk
