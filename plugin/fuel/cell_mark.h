#pragma once

// The mark of advice in the upper left corner of a cell of a calibration table. What it says is the tool tip
// of the cell.

#include <QString>

class QModelIndex;
class QPainter;
class QStyleOptionViewItem;
class QTableWidgetItem;

namespace vlk {

// An empty text takes the mark away.
void markCell(QTableWidgetItem* cell, const QString& text);
void paintCellMark(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index);

} // namespace vlk
