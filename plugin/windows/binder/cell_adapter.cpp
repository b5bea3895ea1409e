#include "windows/binder/cell_adapter.h"

#include <QTreeWidget>

namespace vlk {

CellAdapter::CellAdapter(const Joint& joint, QTreeWidget* tree)
    : Adapter(joint.edits, joint.row), tree_(tree), line_(shown().numbers.outer - 1)
{
    connect(tree, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int column) {
        if (column == shown().column && item == tree_->topLevelItem(line_))
            take();
    });
}

void CellAdapter::show(const QString& value)
{
    tree_->topLevelItem(line_)->setText(shown().column, value);
}

QString CellAdapter::held() const
{
    return tree_->topLevelItem(line_)->text(shown().column);
}

} // namespace vlk
