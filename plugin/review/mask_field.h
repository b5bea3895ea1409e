#pragma once

// A field of a mask as its widget shows it.

#include "settings/kinds/mask.h"

namespace vlk {

// In the present language.
QString fieldText(const MaskField& field);
// What its positions hold in a mask, "01"; one that is too short reads as 0. What that means for the widget:
// a check box is on or not, a list has an item for it, -1 for none.
QString maskPart(const MaskField& field, const QString& mask);
bool isMaskOn(const MaskField& field, const QString& part);
int maskItem(const MaskField& field, const QString& part);

} // namespace vlk
