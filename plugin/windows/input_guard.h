#pragma once

// Keeps a settings page from changing behind the user's back: the wheel scrolls the page and leaves inputs
// alone that do not have the focus, Enter in a line does not press a button elsewhere on the page, and a
// number that is typed or pasted beyond the range of its box becomes the end of the range.

class QWidget;

namespace vlk {

void guardInputs(QWidget* page);

// The range of what is typed into one spin box, where nothing else is to be guarded.
void limitTyping(QWidget* box);

} // namespace vlk
