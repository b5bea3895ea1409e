#pragma once

class QLineEdit;

namespace vlk {

// Lets a number from 0 to `top` be typed into a line, with a point as decimal sign on every system; a comma
// becomes one. What is no such number is kept as it was typed, marked and not acceptable: a number without
// the sign that was dropped from it would be another one.
void takeNumbers(QLineEdit* line, double top, int decimals);

// Whether what was typed cannot be taken. A line that is read-only shows what a sensor says.
bool isUnfit(const QLineEdit* line);

} // namespace vlk
