#include "windows/binder/cell_adapter.h"

#include <QTreeWidget>

namespace vlk {

CellAdapter::CellAdapter(Edits& edits, int row, QTreeWidget* tree)
    : Adapter(edits, row), tree_(tree), row_(setting().number - 1)
{
    connect(tree, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
        if (column == setting().column && item == tree_->topLevelItem(row_))
            take();
    });
}

void CellAdapter::show(const QString& value)
{
    tree_->topLevelItem(row_)->setText(setting().column, value);
}

QString CellAdapter::held() const
{
    return tree_->topLevelItem(row_)->text(setting().column);
}

} // namespace vlk
