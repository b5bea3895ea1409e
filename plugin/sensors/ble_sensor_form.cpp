#include "sensors/ble_sensor_form.h"

#include "document/values_document.h"
#include "review/value_text.h"
#include "settings/bluetooth_settings.h"
#include "typing/grid.h"
#include "windows/binder/page_settings.h"
#include "windows/binder/row_inputs.h"

#include <algorithm>

namespace vlk {

BleSensorForm::BleSensorForm(const BluetoothSensorType& type, int sensor, PageSettings& settings,
                             QWidget* parent)
    : QWidget(parent), type_(type), sensor_(sensor), settings_(settings),
      vendorPath_(numberedName(type.section, sensor) + QStringLiteral("/type")),
      indexPath_(numberedName(type.index.elsewhere ? type.index.elsewhere : type.section, sensor) +
                 QStringLiteral("/idx"))
{
    setObjectName(numberedName(type.section, sensor));
}

int BleSensorForm::vendor() const
{
    return type_.vendors.size() > 1 ? settings_.value(vendorPath_).toInt() : 0;
}

QString BleSensorForm::indexText(int index) const
{
    if (index < 0)
        return {};
    return valueText(settings_.values(), settings_.rowAt(indexPath_), QString::number(index));
}

bool BleSensorForm::needsName() const
{
    switch (type_.naming) {
    case BluetoothSensorType::Naming::Always:
        return true;
    case BluetoothSensorType::Naming::Never:
        return false;
    default:
        return type_.vendors[vendor()].needsName;
    }
}

Values BleSensorForm::element() const
{
    Values element(kBluetoothElements);
    element.edit(QStringLiteral("SENS%1/form").arg(sensor_), QString::fromLatin1(type_.code));
    return element;
}

void BleSensorForm::take(const Values& element)
{
    for (int row = 0; row < element.count(); ++row) {
        if (element.isWritten(row))
            settings_.edit(element.row(row).path, element.value(row));
    }
}

void BleSensorForm::load(CXmlSection* bluetooth)
{
    if (!bluetooth)
        return;
    Values read = element();
    readFrom(*bluetooth, read);
    take(read);
}

void BleSensorForm::save(CXmlSection* bluetooth) const
{
    if (!bluetooth)
        return;
    Values saved = element();
    for (int row = 0; row < saved.count(); ++row) {
        if (saved.row(row).base->stored)
            saved.edit(row, settings_.value(saved.row(row).path));
    }
    writeTo(*bluetooth, saved);
}

void BleSensorForm::setDefaults()
{
    take(element());
}

void BleSensorForm::make()
{
    if (made_)
        return;
    made_ = true;
    makeWidgets();
    settings_.join(this);
    retranslate();
}

void BleSensorForm::makeWidgets()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(vlk::grid::kColumn);
    grid->setVerticalSpacing(vlk::grid::kRow);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    auto rows = rowsOfForm(settings_.values().table(), type_.section, {static_cast<std::uint8_t>(sensor_)});
    // The vendor comes first, wherever the file has its number.
    std::stable_partition(rows.begin(), rows.end(), [this](const Setting* setting) {
        return std::string_view(setting->shown()->widget.tail) == type_.vendorWidget;
    });
    RowLines lines(grid, RowLines::Look::Paired);
    for (const Setting* setting : rows)
        lines.add(*setting);
    grid->setRowStretch(grid->rowCount(), 1);
}

} // namespace vlk
