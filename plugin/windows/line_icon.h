#pragma once

// Drawings of lines in the colour of the text around them, at every scale, on light and dark windows.

#include <QIcon>

namespace vlk {

enum class LineIcon { up, down, warning };

QIcon lineIcon(LineIcon which);

} // namespace vlk
