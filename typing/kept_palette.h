#pragma once

// Colours of a window or a field that are made from the application's, now and whenever those change.

#include <QPalette>

class QWidget;

namespace vlk {

void keepPalette(QWidget* widget, QPalette (*change)(QPalette));

QColor between(const QColor& one, const QColor& other);

// Disabled text that can still be read: halfway between the text and what it stands on, whatever the style
// makes of it.
QPalette withReadableDisabledText(QPalette palette);

// A field that only shows: as the window around it, and no paler where it is disabled.
QPalette ofPresentValue(QPalette palette);
// Its text as grey as a disabled one.
QPalette ofOldValue(QPalette palette);

} // namespace vlk
