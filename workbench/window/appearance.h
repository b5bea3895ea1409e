#pragma once

// Light or dark windows, whatever the system's are.

#include <QColor>

namespace workbench {

enum class Appearance { System = 0, Light = 1, Dark = 2 };

// For all windows of the program, those of the plug-in too, that are open and that come.
void apply(Appearance appearance);

} // namespace workbench
