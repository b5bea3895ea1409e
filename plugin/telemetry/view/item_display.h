#pragma once

// How the windows show a value of a record: its text, or that the record has none.

#include "telemetry/record/tmi_page_zeta3.h"
#include "telemetry/text/item.h"

namespace vlk {

class ValueLabel;

// Whether a record or a packet holds a value at all. The text of one that it lacks is empty, but so may be
// that of a value that says nothing.
bool holds(const TmiPage_Zeta3& page, ElementIndex element);
bool holds(const TmiPage_Zeta3& page, ItemIndex item);

// "56° 30.0000' N", with the digits that the text of the item has.
QString positionText(const TmiPage_Zeta3& page, ItemIndex item);

// The item's text, or a dash where that is empty. That of a coordinate has no hemisphere and no degree sign,
// so the tool tip has them.
void showItem(ValueLabel& label, const TmiPage_Zeta3& page, ItemIndex item);

} // namespace vlk
