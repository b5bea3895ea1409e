#include "fuel/tablewidgetitem_fuelsort.h"

#include "fuel/table/fuel_rows.h"

VLK_TableWidgetItem_FuelSort::VLK_TableWidgetItem_FuelSort(const QString& text) : QTableWidgetItem(UserType)
{
    VLK_TableWidgetItem_FuelSort::setData(Qt::DisplayRole, text);
}

void VLK_TableWidgetItem_FuelSort::setData(int role, const QVariant& value)
{
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        const QString text = value.toString();
        number_ = vlk::fuelNumber(text);
        isEmpty_ = text.isEmpty();
        isNull_ = text.isNull();
    }
    QTableWidgetItem::setData(role, value);
}

bool VLK_TableWidgetItem_FuelSort::operator<(const QTableWidgetItem& other) const
{
    if (other.type() != type())
        return QTableWidgetItem::operator<(other);
    const auto& cell = static_cast<const VLK_TableWidgetItem_FuelSort&>(other);
    return !cell.isEmpty_ && !isNull_ && number_ < cell.number_;
}
