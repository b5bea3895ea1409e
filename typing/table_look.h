#pragma once

// How tables look in the windows of either program: low rows that alternate, texts with room on both sides, a
// grid only where cells are edited, no row numbers. A text that has no room is told by its tool tip. Where
// nothing is edited Ctrl+C takes the chosen rows with the heads of their columns, or all where none is
// chosen, and Home and End choose the first and the last row.

#include <QString>
#include <qnamespace.h>

class QAbstractItemView;
class QTableView;
class QTreeView;

namespace vlk {

enum class TableUse {
    Read,
    Edit,
    Show, // as read, but what Ctrl+C takes is the window's matter, and Home and End need Ctrl
};

void dressTable(QTableView* table, TableUse use);
// A list with heads.
void dressTable(QTreeView* tree);

// For a column of paths, which differ most at their ends.
void elideInTheMiddle(QAbstractItemView* table, int column);

// Texts that have no room in one line take up to three, as the columns are now.
void wrapTexts(QTableView* table);

// How wide a cell of a text is.
int cellWidth(const QAbstractItemView& table, const QString& text);

// What a copy has in the place of what a cell shows, where a model tells one.
inline constexpr int kCopiedRole = Qt::UserRole + 0xC0;

// What Ctrl+C takes where nothing is edited: cells with a tab between them, each row on a line; the heads
// first.
enum class CopiedRows : std::uint8_t { Chosen, All };
QString tableText(const QAbstractItemView& table, CopiedRows rows = CopiedRows::Chosen);

} // namespace vlk
