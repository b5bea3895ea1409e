#pragma once

#include <QIcon>

namespace vlk {

// A plus in the colour of the buttons' texts.
QIcon plusIcon();

} // namespace vlk
