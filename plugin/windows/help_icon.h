#pragma once

#include <QIcon>

namespace vlk {

// A question mark in a circle, in the colour of the buttons' texts, for buttons of 20 by 20 pixels.
QIcon helpIcon();

} // namespace vlk
