#include "fuel/cell_mark.h"

#include "typing/field_mark.h"

#include <QPainter>
#include <QStyleOptionViewItem>
#include <QTableWidgetItem>

namespace vlk {

void markCell(QTableWidgetItem* cell, const QString& text)
{
    if (cell->toolTip() == text)
        return;
    cell->setToolTip(text);
    cell->setData(Qt::AccessibleDescriptionRole, text);
}

void paintCellMark(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (index.data(Qt::ToolTipRole).toString().isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(option.rect.topLeft() + QPoint(1, 1));
    paintMark(painter, Mark::Advice, option.palette);
    painter.restore();
}

} // namespace vlk
