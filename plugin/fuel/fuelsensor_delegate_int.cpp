#include "fuel/fuelsensor_delegate_int.h"

#include <QIntValidator>
#include <QLineEdit>

QWidget* VLK_FuelSensor_Delegate_Int::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                                   const QModelIndex& /*index*/) const
{
    constexpr int highestCode = 65535;
    auto* edit = new QLineEdit(parent);
    auto* validator = new QIntValidator(0, highestCode, edit);
    validator->setLocale(QLocale::c());
    edit->setValidator(validator);
    return edit;
}
