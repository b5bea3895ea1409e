#pragma once

// Titles of groups that stand out and are whole, whatever the style measures: in DemiBold, with the room that
// the letters take in it.

class QGroupBox;
class QWidget;

namespace vlk {

void dressGroup(QGroupBox* group);
// All that are in the window now.
void dressGroups(QWidget* window);

} // namespace vlk
