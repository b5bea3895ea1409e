#pragma once

// A field that finds or filters in a list or a page: Ctrl+F leads to it, Esc empties it and goes back to what
// it looks in, the arrow down goes there too.

class QLineEdit;
class QWidget;

namespace workbench {

void joinFindField(QLineEdit* field, QWidget* content);

} // namespace workbench
