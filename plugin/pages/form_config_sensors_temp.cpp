#include "pages/form_config_sensors_temp.h"

#include "settings/temperature_settings.h"
#include "windows/named_widget.h"
#include "windows/vlk_dblslider2.h"
#include "windows/zone_colors.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>

namespace {

constexpr int kGap = 12; // between what does not belong together

// A number behind its caption, in a row of the first or the second pair of columns.
template <class Box>
void addNumber(QGridLayout* grid, int row, int column, const char* name, int number)
{
    auto* box = vlk::numberedWidget<Box>(name, number);
    auto* label = new QLabel;
    label->setBuddy(box);
    grid->addWidget(label, row, column);
    grid->addWidget(box, row, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
    grid->setColumnStretch(column + 1, 1);
}

} // namespace

VLK_Form_Config_Sensors_Temp::VLK_Form_Config_Sensors_Temp(QWidget* parent)
    : QWidget(parent), settings_(vlk::kTemperatureSettings, "cfgt7_001")
{
    auto* layout = new QVBoxLayout(this);
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        sensors_[i] = makeSensor(static_cast<int>(i) + 1);
        layout->addWidget(sensors_[i].group);
    }
    layout->addStretch();
    settings_.bind({this});
    retranslate();
    setDefaults();
}

VLK_Form_Config_Sensors_Temp::Sensor VLK_Form_Config_Sensors_Temp::makeSensor(int number)
{
    auto* group = vlk::numberedWidget<QGroupBox>("groupBox_Temp_%1", number);
    auto* slider = vlk::numberedWidget<VLK_DblSlider2>("slider_Temp_%1", number);
    const Sensor sensor{group, slider, new QLabel, new QLabel, {new QLabel, new QLabel}};
    auto* rows = new QVBoxLayout(group);

    slider->setColorLow(vlk::kTriggerColor);
    slider->setColorMiddle(vlk::kRestoreColor);
    slider->setColorHigh(vlk::kTriggerColor);
    auto* form = new QFormLayout;
    form->setObjectName(QStringLiteral("formLayout_Temp_%1").arg(number));
    form->addRow(slider);
    auto* scale = new QHBoxLayout;
    scale->setSpacing(kGap);
    scale->addWidget(sensor.zones[0]);
    scale->addWidget(sensor.lowEnd);
    scale->addLayout(form, 1);
    scale->addWidget(sensor.highEnd);
    scale->addWidget(sensor.zones[1]);
    rows->addLayout(scale);

    auto* numbers = new QGridLayout;
    addNumber<QDoubleSpinBox>(numbers, 0, 0, "doubleSpinBox_Left_Temp_%1", number);
    addNumber<QDoubleSpinBox>(numbers, 0, 2, "doubleSpinBox_Right_Temp_%1", number);
    addNumber<QSpinBox>(numbers, 1, 0, "spinBox_Hyst_%1", number);
    numbers->addWidget(vlk::numberedWidget<QCheckBox>("checkBox_Filtr_%1", number), 1, 2);
    rows->addLayout(numbers);
    return sensor;
}

void VLK_Form_Config_Sensors_Temp::retranslate()
{
    const auto degrees = [](double value) { return QStringLiteral("%1 %2").arg(value).arg(tr("abbr_017")); };
    for (std::size_t i = 0; i < sensors_.size(); ++i) {
        const Sensor& sensor = sensors_[i];
        sensor.group->setTitle(QStringLiteral("%1 T%2").arg(tr("cfgt7_007")).arg(i + 1));
        sensor.lowEnd->setText(degrees(sensor.slider->minimum()));
        sensor.highEnd->setText(degrees(sensor.slider->maximum()));
        for (QLabel* zone : sensor.zones)
            zone->setText(tr("cfgt7_006"));
    }
    settings_.retranslate();
}
