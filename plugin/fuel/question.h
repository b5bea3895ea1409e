#pragma once

// Boxes of the calibration windows, all warnings.

#include <QString>

class QWidget;

namespace vlk {

// Asks with Yes and a second button, whose text is a key and which is the one that Escape means. True for
// Yes. The hint stands below the question.
bool agrees(QWidget* parent, const QString& text, const char* noKey, const QString& hint = {});
// Tells, and waits for OK.
void warn(QWidget* parent, const QString& text);

} // namespace vlk
