#include "pages/operator_rows.h"

#include <QTreeWidget>

namespace vlk {

void makeOperatorRows(QTreeWidget* tree, int count)
{
    for (int row = 0; row < count; ++row)
        (new QTreeWidgetItem(tree))->setTextAlignment(0, Qt::AlignCenter);
    numberOperatorRows(tree);
    // The keys that open a cell come without a double click.
    QObject::connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, tree,
                     [tree](const QModelIndex& cell) {
                         if (cell.isValid())
                             allowEditing(tree->topLevelItem(cell.row()), cell.column());
                     });
}

void numberOperatorRows(QTreeWidget* tree)
{
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
        tree->topLevelItem(row)->setText(0, QString::number(row + 1));
}

void allowEditing(QTreeWidgetItem* item, int column)
{
    if (column >= kFirstOperatorColumn)
        item->setFlags(item->flags() | Qt::ItemIsEditable);
    else
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
}

} // namespace vlk
