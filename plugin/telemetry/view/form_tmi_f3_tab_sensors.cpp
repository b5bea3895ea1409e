#include "telemetry/view/form_tmi_f3_tab_sensors.h"

#include "windows/vlk_combobox.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace vlk;

namespace {

constexpr ValueSeries kAnalogSensors[] = {
    {"label_Analog_Power_Value", "tmift2_024", item("Power")},
    {"label_Analog_Reserv_Value", "tmift2_022", item("Reserv")},
    {"label_Analog_Value_In_%1", "tmift2_003", item("StateU_Ain1"), 8},
};

constexpr ValueSeries kInputSensors[] = {
    {"label_In_Value_%1", "tmift2_008", item("StateIn1.0"), 24, 0, "label_In_Caption_%1"},
};

constexpr ValueSeries kOutputSensors[] = {
    {"label_Out_Value_%1", "tmift2_010", item("StateOut1.0"), 16, 0, "label_Out_Caption_%1"},
};

constexpr ValueSeries kPulses[] = {
    {"label_Impuls_Value_Counter_%1", "tmift2_014", item("StateIn_Imp1"), 8},
    {"label_Impuls_Value_Frequency_%1", "tmift2_015", item("Frequency1"), 8},
};

constexpr ValueSeries kTemperatures[] = {
    {"label_TS_Value_%1", "tmift2_017", item("Temp1"), 8, 0, "label_TS_Caption_%1"},
};

constexpr ValueSeries kPreciseSensors[] = {
    {"label_HP_Value_Temp_%1", "tmizta_185", item("HPrecisionTemp1"), 4},
    {"label_HP_Value_Humidity_%1", "tmift2_019", item("HPrecisionHumidity1"), 4},
};

} // namespace

VLK_Form_Tmi_F3_Tab_Sensors::VLK_Form_Tmi_F3_Tab_Sensors(QWidget* parent)
    : VLK_Form_Tmi_F3_Tab("tmift2_001", parent), commands_(new QWidget), output_(new VLK_ComboBox),
      on_(new QPushButton), off_(new QPushButton)
{
    addGroup(0, "groupBox_Analog", "tmift2_002")->addList(kAnalogSensors);
    inputs_ = addGroup(1, "groupBox_In", "tmift2_006");
    inputs_->addList(kInputSensors);
    outputs_ = addGroup(1, "groupBox_Out", "tmift2_009");
    outputs_->addList(kOutputSensors);
    addGroup(0, "groupBox_Impuls", "tmift2_013")->addColumns(kPulses);
    temperatures_ = addGroup(2, "groupBox_TS", "tmift2_016");
    temperatures_->addList(kTemperatures);
    addGroup(2, "groupBox_HP", "tmift2_018")->addColumns(kPreciseSensors);

    output_->setObjectName(QStringLiteral("comboBox_Out"));
    on_->setObjectName(QStringLiteral("pushButton_Out_On"));
    off_->setObjectName(QStringLiteral("pushButton_Out_Off"));
    auto* row = new QHBoxLayout(commands_);
    row->setContentsMargins({});
    row->addWidget(output_);
    row->addWidget(on_);
    row->addWidget(off_);
    outputs_->addCommand(commands_);
    connect(on_, &QPushButton::pressed, this, &VLK_Form_Tmi_F3_Tab_Sensors::slot_pressed_Btn_Out_On);
    connect(off_, &QPushButton::pressed, this, &VLK_Form_Tmi_F3_Tab_Sensors::slot_pressed_Btn_Out_Off);
}

void VLK_Form_Tmi_F3_Tab_Sensors::setTitles(const TelemetryTitles& titles)
{
    inputs_->setTitles(titles.inputs);
    outputs_->setTitles(titles.outputs);
    temperatures_->setTitles(titles.temperatures);
}

void VLK_Form_Tmi_F3_Tab_Sensors::setInputCount(int count)
{
    inputs_->setRowsVisible(count);
}

void VLK_Form_Tmi_F3_Tab_Sensors::setOutputCount(int count)
{
    if (count == outputCount_)
        return;
    outputCount_ = count;
    outputs_->setRowsVisible(count);
    offerOutputs();
}

void VLK_Form_Tmi_F3_Tab_Sensors::offerOutputs()
{
    const int chosen = output_->currentIndex();
    output_->clear();
    for (std::size_t i = 0; i < outputTexts_.size(); ++i) {
        outputTexts_[i] = QStringLiteral("%1 %2").arg(tr("tmift2_010")).arg(i + 1);
        if (static_cast<int>(i) < outputCount_)
            output_->addItem(outputTexts_[i]);
    }
    output_->setCurrentIndex(chosen < output_->count() ? std::max(chosen, 0) : 0);
}

void VLK_Form_Tmi_F3_Tab_Sensors::retranslate()
{
    VLK_Form_Tmi_F3_Tab::retranslate();
    on_->setText(tr("tmift2_011"));
    off_->setText(tr("tmift2_012"));
    output_->setAccessibleName(tr("tmift2_010"));
    offerOutputs();
}

int VLK_Form_Tmi_F3_Tab_Sensors::chosenOutput() const
{
    const auto found = std::ranges::find(outputTexts_, output_->currentText());
    return found == outputTexts_.end() ? 0 : static_cast<int>(found - outputTexts_.begin()) + 1;
}

void VLK_Form_Tmi_F3_Tab_Sensors::slot_pressed_Btn_Out_On()
{
    Q_EMIT signal_SetOut_On(chosenOutput());
}

void VLK_Form_Tmi_F3_Tab_Sensors::slot_pressed_Btn_Out_Off()
{
    Q_EMIT signal_SetOut_Off(chosenOutput());
}
