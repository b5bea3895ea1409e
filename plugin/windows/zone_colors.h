#pragma once

// Colours of the zones that a slider with two handles shows: where a sensor triggers, and where it is back to
// normal. Both read on light and on dark windows.

#include <QColor>

namespace vlk {

inline const QColor kTriggerColor(0xd0, 0x30, 0x30);
inline const QColor kRestoreColor(0x30, 0xa0, 0x50);

} // namespace vlk
