#pragma once

// Keeps a settings page from changing behind the user's back: the wheel scrolls the page and leaves inputs
// alone that do not have the focus, Enter in a line does not press a button elsewhere on the page, and what
// is typed into a field is taken or refused as a whole (typing/typed_entry.h).

class QWidget;

namespace vlk {

void guardInputs(QWidget* page);

} // namespace vlk
