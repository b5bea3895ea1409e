#pragma once

// A value that somebody else sets, in a field or a label: it stands out from its caption, and does not look
// as if it could be typed over.

class QDoubleSpinBox;
class QLineEdit;
class QWidget;

namespace vlk {

// DemiBold; a field loses its frame, its arrows and its Tab stop, and keeps its name, its class and its
// colours, which may tell something.
void standOut(QWidget* value, bool present = true);
// Shows it as standOut does, and a field has the colour of the window around it, no paler where it is
// disabled. Without `present` a line is one to type into again.
void showAsPresent(QWidget* value, bool present = true);
// One that holds no longer is grey.
void showAsOld(QWidget* value, bool old);
// All that stand out within a widget.
void showAllAsOld(const QWidget* among, bool old);

// A measured value, or a dash before the first one; the box holds its least value meanwhile.
void showPresentValue(QDoubleSpinBox* box, double value);
void showNoPresentValue(QDoubleSpinBox* box);
// Draws the dash in the place of what a line holds before the first value.
void showDash(QLineEdit* line, bool isAbsent);

} // namespace vlk
