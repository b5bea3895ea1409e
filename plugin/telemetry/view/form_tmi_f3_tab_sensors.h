#pragma once

// Voltages, lines, counters and temperatures under the names that the user gave them; switches outputs.

#include "telemetry/record/telemetry_titles.h"
#include "telemetry/view/form_tmi_f3_tab.h"

class QPushButton;
class VLK_ComboBox;

class VLK_Form_Tmi_F3_Tab_Sensors : public VLK_Form_Tmi_F3_Tab
{
    Q_OBJECT

public:
    explicit VLK_Form_Tmi_F3_Tab_Sensors(QWidget* parent = nullptr);

    void setTitles(const vlk::TelemetryTitles& titles);
    void setInputCount(int count);
    // At most four can be switched.
    void setOutputCount(int count);
    QWidget* commands() const { return commands_; }
    void retranslate() override;

Q_SIGNALS:
    // 1 to 4; 0 when no output is chosen.
    void signal_SetOut_On(int output);
    void signal_SetOut_Off(int output);

private Q_SLOTS:
    void slot_pressed_Btn_Out_On();
    void slot_pressed_Btn_Out_Off();

private:
    int chosenOutput() const;
    void offerOutputs();

    vlk::RecordGroup* inputs_;
    vlk::RecordGroup* outputs_;
    vlk::RecordGroup* temperatures_;
    QWidget* commands_;
    VLK_ComboBox* output_;
    QPushButton* on_;
    QPushButton* off_;
    int outputCount_ = 0;
    std::array<QString, 4> outputTexts_;
};
