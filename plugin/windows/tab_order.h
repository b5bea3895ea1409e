#pragma once

class QWidget;

namespace vlk {

// The Tab key goes from `before` through the fields of `part`, in the order that they have, and on to what
// followed `before`. Both stand in one window.
void tabThrough(QWidget* before, const QWidget* part);

} // namespace vlk
