#pragma once

// The form of the fuel level sensors on the serial line: a table with a row a sensor, one type for all of
// them, and a calibration table for each of the first six, which the calibration dialog edits. The
// calibrations are not in the configuration file.

#include "peripherals/form_config_rs_param.h"

#include <QMap>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class VLK_Form_Fuel_View;

class VLK_Form_Config_RS_Param_Flds_RS485 : public VLK_Form_Config_RS_Param
{
    Q_OBJECT

public:
    // `sixRows`: the other sensors are not on show; their settings are kept all the same. The types that are
    // offered are those of the table of settings.
    explicit VLK_Form_Config_RS_Param_Flds_RS485(bool sixRows, QWidget* parent = nullptr);

    void hideCalibration();
    void setDefaults() override;
    void retranslate() override;

Q_SIGNALS:
    // The calibration dialog wants the sensors' present values, or no more of them.
    void signal_GetCurrentFuelData(bool on);

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_stateChanged_Use_1(int) {}
    void slot_stateChanged_Use_2(int) {}
    void slot_stateChanged_Use_3(int) {}
    void slot_stateChanged_Use_4(int) {}
    void slot_stateChanged_Use_5(int) {}
    void slot_stateChanged_Use_6(int) {}
    void slot_stateChanged_Use_7(int) {}
    void slot_stateChanged_Use_8(int) {}
    void slot_stateChanged_Use_9(int) {}
    void slot_stateChanged_Use_10(int) {}
    void slot_stateChanged_Use_11(int) {}
    void slot_stateChanged_Use_12(int) {}
    void slot_stateChanged_Use_13(int) {}
    void slot_stateChanged_Use_14(int) {}
    void slot_stateChanged_Use_15(int) {}
    void slot_stateChanged_Use_16(int) {}
    void slot_stateChanged_Filter_1(int) {}
    void slot_stateChanged_Filter_2(int) {}
    void slot_stateChanged_Filter_3(int) {}
    void slot_stateChanged_Filter_4(int) {}
    void slot_stateChanged_Filter_5(int) {}
    void slot_stateChanged_Filter_6(int) {}
    void slot_stateChanged_Filter_7(int) {}
    void slot_stateChanged_Filter_8(int) {}
    void slot_stateChanged_Filter_9(int) {}
    void slot_stateChanged_Filter_10(int) {}
    void slot_stateChanged_Filter_11(int) {}
    void slot_stateChanged_Filter_12(int) {}
    void slot_stateChanged_Filter_13(int) {}
    void slot_stateChanged_Filter_14(int) {}
    void slot_stateChanged_Filter_15(int) {}
    void slot_stateChanged_Filter_16(int) {}
    void slot_pressed_Fuel_1() { editCalibration(1); }
    void slot_pressed_Fuel_2() { editCalibration(2); }
    void slot_pressed_Fuel_3() { editCalibration(3); }
    void slot_pressed_Fuel_4() { editCalibration(4); }
    void slot_pressed_Fuel_5() { editCalibration(5); }
    void slot_pressed_Fuel_6() { editCalibration(6); }
    void slot_GetFuelData(bool on);
    void slot_SetNewFuelData();

private:
    static constexpr int kCalibrated = 6;

    void addHead();
    void addRow(int sensor);
    QWidget* calibrationCell(int sensor);
    void editCalibration(int sensor);
    void hold(std::size_t place, const QMap<double, int>& table);

    QGridLayout* table_;
    QList<QLabel*> heads_;
    VLK_Form_Fuel_View* view_ = nullptr;
    std::array<QMap<double, int>, kCalibrated> calibrations_; // litres to sensor values
    std::array<QCheckBox*, kCalibrated> held_{};
};
