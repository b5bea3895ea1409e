#include "fuel/fuelsensor_delegate_int.h"

#include "fuel/cell_mark.h"
#include "fuel/fuel_number_line.h"
#include "fuel/table/fuel_sensors.h"

#include <QLineEdit>

QWidget* VLK_FuelSensor_Delegate_Int::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                                   const QModelIndex& /*index*/) const
{
    auto* edit = new QLineEdit(parent);
    vlk::takeNumbers(edit, vlk::kCodeLimit.top, vlk::kCodeLimit.decimals);
    return edit;
}

void VLK_FuelSensor_Delegate_Int::setModelData(QWidget* editor, QAbstractItemModel* model,
                                               const QModelIndex& index) const
{
    vlk::setToTyped(model, index, editor);
}

void VLK_FuelSensor_Delegate_Int::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    QItemDelegate::paint(painter, option, index);
    vlk::paintCellMark(*painter, option, index);
}
