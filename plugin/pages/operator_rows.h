#pragma once

// What the two lists of operators have in common: rows that always exist, a first column with the row's
// number that nobody edits, and cells behind it that a double click or F2 opens.

class QTreeWidget;
class QTreeWidgetItem;

namespace vlk {

inline constexpr int kFirstOperatorColumn = 1;

// Makes the rows, numbered from 1.
void makeOperatorRows(QTreeWidget* tree, int count);

// Writes the numbers into the first column.
void numberOperatorRows(QTreeWidget* tree);

// Sets or clears the row's editable flag for the column that is about to be edited.
void allowEditing(QTreeWidgetItem* item, int column);

} // namespace vlk
