#include "sensors/ble_sensor_form.h"

#include "settings/bluetooth_settings.h"
#include "settings/value_text.h"
#include "windows/binder/page_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

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
    case BluetoothSensorType::Naming::always:
        return true;
    case BluetoothSensorType::Naming::never:
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
    read.read(*bluetooth);
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
    saved.write(*bluetooth);
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

// Lists one below the other, what else the type has in pairs below them.
void BleSensorForm::makeWidgets()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    int row = 0;
    int column = 0;
    const auto add = [&](const Setting& setting) {
        const QString name = QString::fromLatin1(setting.shown()->widget.tail);
        auto* label = new QLabel;
        label->setObjectName(QStringLiteral("label_") + name.section(QLatin1Char('_'), 1));
        if (setting.is<Choice>()) {
            auto* list = new QComboBox;
            list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
            list->setObjectName(name);
            label->setBuddy(list);
            grid->addWidget(label, row, 0);
            grid->addWidget(list, row, 1, 1, 3);
            ++row;
        } else if (setting.is<Flag>()) {
            auto* box = new QCheckBox;
            box->setObjectName(name);
            label->setBuddy(box);
            auto* pair = new QHBoxLayout;
            pair->setSpacing(6);
            pair->addWidget(box);
            pair->addWidget(label, 1);
            grid->addLayout(pair, row, column, 1, 2);
            column += 2;
        } else {
            auto* number = new QSpinBox;
            number->setObjectName(name);
            label->setBuddy(number);
            grid->addWidget(label, row, column);
            grid->addWidget(number, row, column + 1, Qt::AlignLeft);
            column += 2;
        }
    };
    // The vendor comes first, wherever the file has its number.
    for (const bool first : {true, false}) {
        for (const Setting& setting : settings_.values().table().rows) {
            const Shown* shown = setting.shown();
            if (shown && shown->numbers.outer == sensor_ && shown->widget.form() == type_.section &&
                (std::string_view(shown->widget.tail) == type_.vendorWidget) == first)
                add(setting);
        }
    }
    grid->setRowStretch(row + 1, 1);
}

} // namespace vlk
