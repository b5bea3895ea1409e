#pragma once

// The workbench's own icons: line drawings from workbench/icons, drawn in the colour of the text around them,
// so that they serve light and dark palettes at every scale.

#include <QIcon>

namespace workbench {

// The drawing "<name>.svg"; a name without a drawing gives an icon without a picture.
QIcon lineIcon(const QString& name);

// The workbench's own, in its fixed colours.
QIcon applicationIcon();

} // namespace workbench
