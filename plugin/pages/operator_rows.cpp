#include "pages/operator_rows.h"

#include "typing/field_mark.h"
#include "typing/text_entry.h"
#include "windows/carried_text.h"

#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QTreeWidget>

namespace vlk {

namespace {

// The column of numbers is narrow and fixed: the numbers shrink until they fit.
class NumberDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideNone;
        constexpr double kSmallest = 6;
        const auto* tree = qobject_cast<const QTreeView*>(option->widget);
        const int room = (tree ? tree->columnWidth(index.column()) : option->rect.width()) - 4;
        while (QFontMetrics(option->font).horizontalAdvance(option->text) > room &&
               option->font.pointSizeF() > kSmallest)
            option->font.setPointSizeF(option->font.pointSizeF() - 0.5);
        option->fontMetrics = QFontMetrics(option->font);
    }
};

// Leaves the corner to the mark of a cell (cell_marks.h), whether it has one or not: nothing moves.
class ListedDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            line->setValidator(new CarriedText(line));
            TextEntry::join(line);
        }
        return editor;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The style adds a margin on both sides.
        constexpr int kBesideMargins = kMarkSize - 6;
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = {kBesideMargins, 1};
    }
};

} // namespace

void makeOperatorRows(QTreeWidget* tree, int count)
{
    for (int row = 0; row < count; ++row)
        (new QTreeWidgetItem(tree))->setTextAlignment(0, Qt::AlignCenter);
    tree->setItemDelegate(new ListedDelegate(tree));
    tree->setItemDelegateForColumn(0, new NumberDelegate(tree));
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
