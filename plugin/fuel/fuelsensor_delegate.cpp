#include "fuel/fuelsensor_delegate.h"

#include "fuel/cell_mark.h"
#include "fuel/fuel_number_line.h"

#include <QKeyEvent>
#include <QLineEdit>

VLK_FuelSensor_Delegate::VLK_FuelSensor_Delegate(double top, int decimals, QObject* parent)
    : QItemDelegate(parent), top_(top), decimals_(decimals)
{
}

QWidget* VLK_FuelSensor_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                               const QModelIndex& /*index*/) const
{
    auto* edit = new QLineEdit(parent);
    vlk::takeNumbers(edit, top_, decimals_);
    return edit;
}

void VLK_FuelSensor_Delegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                           const QModelIndex& index) const
{
    vlk::setToTyped(model, index, editor);
}

bool VLK_FuelSensor_Delegate::eventFilter(QObject* object, QEvent* event)
{
    auto* editor = qobject_cast<QLineEdit*>(object);
    if (!editor || event->type() != QEvent::KeyPress)
        return QItemDelegate::eventFilter(object, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Escape:
        Q_EMIT closeEditor(editor, RevertModelCache);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // The editor stays open until it holds a number.
        if (editor->hasAcceptableInput()) {
            Q_EMIT commitData(editor);
            Q_EMIT closeEditor(editor);
        }
        return true;
    default:
        return QItemDelegate::eventFilter(object, event);
    }
}

void VLK_FuelSensor_Delegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    QItemDelegate::paint(painter, option, index);
    vlk::paintCellMark(*painter, option, index);
}
