#pragma once

// Values that the tracker has measured, in boxes that only show them: text that stands out, without frame,
// arrows and Tab stop; a dash before the first answer.

class QDoubleSpinBox;
class QLineEdit;
class QSlider;

namespace vlk {

void dressPresentValue(QDoubleSpinBox* box);
// Keeps its colours, which may tell something.
void dressPresentValue(QLineEdit* line);
// A bar without a handle.
void dressPresentValue(QSlider* slider);

void showPresentValue(QDoubleSpinBox* box, double value);
void showNoPresentValue(QDoubleSpinBox* box);

} // namespace vlk
