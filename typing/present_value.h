#pragma once

// A value that somebody else sets, in a field or a label: it stands out from its caption, and does not look
// as if it could be typed over.

class QWidget;

namespace vlk {

// DemiBold; a field loses its frame, its arrows, the colour of paper and its Tab stop, and keeps its name and
// its class. Without `present` a line is one to type into again.
void showAsPresent(QWidget* value, bool present = true);

} // namespace vlk
