#pragma once

// How much room an item's text can take, so that a panel keeps that room whatever the records hold.

#include "telemetry/text/item.h"

class QFontMetrics;

namespace vlk {

// Pixels of the widest text of the item in the language of now. Floating values count with up to six digits
// before the point.
int widestText(const QFontMetrics& font, ItemIndex item);

} // namespace vlk
