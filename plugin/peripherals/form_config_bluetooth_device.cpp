#include "peripherals/form_config_bluetooth_device.h"

#include "peripherals/form_config_bluetooth_device_type.h"
#include "settings/bluetooth_sensor_types.h"
#include "typing/grid.h"
#include "windows/binder/page_settings.h"
#include "windows/disabled_reason.h"
#include "windows/named_widget.h"
#include "windows/tab_order.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

static_assert(VLK_Form_Config_Bluetooth_Device::kSensors == vlk::kBluetoothSensors);

VLK_Form_Config_Bluetooth_Device::VLK_Form_Config_Bluetooth_Device(vlk::PageSettings& settings,
                                                                   QWidget* parent)
    : QWidget(parent), settings_(settings)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(vlk::grid::kGroup);
    for (int number = 1; number <= kSensors; ++number) {
        sensors_[number - 1] = makeSensor(number);
        layout->addWidget(sensors_[number - 1].box);
    }
    using This = VLK_Form_Config_Bluetooth_Device;
    connect(&settings_, &vlk::PageSettings::changed, this, &This::tellChanges);
    connect(&settings_, &vlk::PageSettings::shown, this, &This::tellChanges);
}

VLK_Form_Config_Bluetooth_Device::Sensor VLK_Form_Config_Bluetooth_Device::makeSensor(int number)
{
    Sensor sensor{};
    sensor.box = vlk::numberedWidget<QGroupBox>("groupBox_Sens_%1", number);
    sensor.name = vlk::numberedWidget<QLineEdit>("lineEdit_Name_Sens_%1", number);
    auto* layout = new QVBoxLayout(sensor.box);
    layout->setSpacing(vlk::grid::kRow);
    auto* grid = new QGridLayout;
    const std::pair<QLabel*, QWidget*> fields[] = {
        {vlk::numberedWidget<QLabel>("label_Type_Sens_%1", number),
         vlk::numberedWidget<QComboBox>("comboBox_Type_Sens_%1", number)},
        {vlk::numberedWidget<QLabel>("label_MacAddr_Sens_%1", number),
         vlk::numberedWidget<QLineEdit>("lineEdit_Bt_MacAdr_Sens_%1", number)},
        {vlk::numberedWidget<QLabel>("label_Name_Sens_%1", number), sensor.name},
    };
    // Long names of types do not widen the page.
    auto* types = static_cast<QComboBox*>(fields[0].second);
    types->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    types->setMinimumContentsLength(22);
    int place = 0;
    for (const auto& [label, widget] : fields) {
        label->setBuddy(widget);
        const int column = place % 2 * 2;
        grid->addWidget(label, place / 2, column);
        grid->addWidget(widget, place / 2, column + 1);
        grid->setColumnStretch(column + 1, 1);
        ++place;
    }
    sensor.types = types;
    layout->addLayout(grid);
    sensor.more = vlk::numberedWidget<QGroupBox>("groupBox_More_Sens_%1", number);
    auto* more = new QVBoxLayout(sensor.more);
    more->setObjectName(QStringLiteral("formLayout_Sens_%1").arg(number));
    sensor.type = new VLK_Form_Config_Bluetooth_Device_Type(number, settings_);
    more->addWidget(sensor.type);
    layout->addWidget(sensor.more);

    using This = VLK_Form_Config_Bluetooth_Device;
    using Type = VLK_Form_Config_Bluetooth_Device_Type;
    connect(sensor.type, &Type::signalEnabledSensorName, this,
            [this, number](bool on) { enableName(number, on); });
    sensor.name->setEnabled(false);
    vlk::tellWhyDisabled(sensor.name, "tmiw_280");
    connect(sensor.type, &Type::signal_UserParam_Add, this, &This::slot_UserParam_Add);
    connect(sensor.type, &Type::signal_UserParam_Del, this, &This::slot_UserParam_Del);
    return sensor;
}

void VLK_Form_Config_Bluetooth_Device::tellChanges()
{
    for (const Sensor& sensor : sensors_) {
        const int before = sensor.type->type();
        sensor.type->tellChanges();
        // A form is made when its type is chosen for the first time, later than all else on the page.
        if (sensor.type->type() != before)
            vlk::tabThrough(sensor.name, sensor.type);
        sensor.more->setHidden(sensor.type->type() == 0);
    }
}

void VLK_Form_Config_Bluetooth_Device::retranslate()
{
    for (int number = 1; number <= kSensors; ++number) {
        const Sensor& sensor = sensors_[number - 1];
        sensor.box->setTitle(title(number));
        sensor.more->setTitle(tr("cfgt17_027"));
        sensor.type->retranslate();
    }
}

void VLK_Form_Config_Bluetooth_Device::bind(int sensor, const QString& mac, const QString& name)
{
    const Sensor& bound = sensors_[sensor - 1];
    settings_.edit(QStringLiteral("SENS%1/macaddr").arg(sensor), mac);
    // One without a type gets it later, and then may need the name.
    if (bound.name->isEnabled() || bound.type->type() == 0)
        settings_.edit(QStringLiteral("SENS%1/name").arg(sensor), name);
    for (QWidget* outer = parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer))
            area->ensureWidgetVisible(bound.box);
    }
    bound.types->setFocus(Qt::OtherFocusReason);
}

QString VLK_Form_Config_Bluetooth_Device::title(int sensor) const
{
    return QStringLiteral("%1 %2").arg(tr("cfgt17_024")).arg(sensor);
}

QString VLK_Form_Config_Bluetooth_Device::address(int sensor) const
{
    const QString address = settings_.value(QStringLiteral("SENS%1/macaddr").arg(sensor));
    // An input mask leaves its colons in an empty edit.
    return QString(address).remove(QLatin1Char(':')).isEmpty() ? QString() : address;
}

QString VLK_Form_Config_Bluetooth_Device::keyToDisplay(const QString& key) const
{
    for (const Sensor& sensor : sensors_) {
        if (QString text = sensor.type->keyToDisplay(key); !text.isEmpty())
            return text;
    }
    return {};
}

QString VLK_Form_Config_Bluetooth_Device::displayToKey(const QString& text) const
{
    for (const Sensor& sensor : sensors_) {
        if (QString key = sensor.type->displayToKey(text); !key.isEmpty())
            return key;
    }
    return {};
}

void VLK_Form_Config_Bluetooth_Device::clearTests()
{
    for (const Sensor& sensor : sensors_)
        sensor.type->clearTests();
}

// A text that no type has stands for none.
void VLK_Form_Config_Bluetooth_Device::selectType(int sensor, const QString& text)
{
    int number = 0;
    for (const vlk::BluetoothSensorType& known : vlk::kBluetoothSensorTypes) {
        if (known.text && text == tr(known.text))
            number = QByteArray(known.code).toInt();
    }
    type(sensor)->selectType(number);
}

void VLK_Form_Config_Bluetooth_Device::enableName(int sensor, bool on)
{
    sensors_[sensor - 1].name->setEnabled(on);
}
