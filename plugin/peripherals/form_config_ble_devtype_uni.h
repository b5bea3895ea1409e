#pragma once

// The form of the universal wireless sensor: conditions for the messages that are taken, and values in them,
// each with what it is in the tracker. Rows, lists and what rows do to each other are settings
// (settings/bluetooth_universal_rows.h); here is what the form tells of them: the user parameters that its
// rows offer, and the numbers that they take, of six kinds.

#include "peripherals/ble_sensor_form.h"
#include "settings/bluetooth_settings.h"

#include <array>

class VLK_Form_Config_Ble_DevType_Uni : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    VLK_Form_Config_Ble_DevType_Uni(const vlk::BluetoothSensorType& type, int sensor,
                                    vlk::PageSettings& settings, QWidget* parent = nullptr);

    // Kinds of numbers, with the one of targets that have none.
    static constexpr int kKinds = 7;

    // The name of the parameter with a key such as "up7", empty for one that no row offers.
    QString keyToDisplay(const QString& key) const;
    void setDefaults() override;
    // Unchecks the boxes of the check against an example message.
    void clearTests();
    void retranslate() override;
    void tellChanges() override;

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_stateChangedCondition_Use_2(int) {}
    void slot_stateChangedCondition_Use_3(int) {}
    void slot_stateChangedCondition_Use_4(int) {}
    void slot_stateChangedCondition_Test_Use_1(int) {}
    void slot_stateChangedCondition_Test_Use_2(int) {}
    void slot_stateChangedCondition_Test_Use_3(int) {}
    void slot_stateChangedCondition_Test_Use_4(int) {}
    void slot_valueChanged_Condition_Group_1(int) {}
    void slot_valueChanged_Condition_Group_2(int) {}
    void slot_valueChanged_Condition_Group_3(int) {}
    void slot_valueChanged_Condition_Group_4(int) {}
    void slot_currentIndexChanged_Condition_Operator_2(const QString&) {}
    void slot_currentIndexChanged_Condition_Operator_3(const QString&) {}
    void slot_currentIndexChanged_Condition_Operator_4(const QString&) {}
    void slot_valueChanged_Condition_Type_1(int) {}
    void slot_valueChanged_Condition_Type_2(int) {}
    void slot_valueChanged_Condition_Type_3(int) {}
    void slot_valueChanged_Condition_Type_4(int) {}
    void slot_valueChanged_Condition_Displacement_1(int) {}
    void slot_valueChanged_Condition_Displacement_2(int) {}
    void slot_valueChanged_Condition_Displacement_3(int) {}
    void slot_valueChanged_Condition_Displacement_4(int) {}
    void slot_textChanged_Condition_Mask_1(const QString&) {}
    void slot_textChanged_Condition_Mask_2(const QString&) {}
    void slot_textChanged_Condition_Mask_3(const QString&) {}
    void slot_textChanged_Condition_Mask_4(const QString&) {}
    void slot_stateChangedParameters_Use_1(int) {}
    void slot_stateChangedParameters_Use_2(int) {}
    void slot_stateChangedParameters_Use_3(int) {}
    void slot_stateChangedParameters_Use_4(int) {}
    void slot_stateChangedParameters_Use_5(int) {}
    void slot_stateChangedParameters_Use_6(int) {}
    void slot_stateChangedParameters_Use_7(int) {}
    void slot_stateChangedParameters_Use_8(int) {}
    void slot_currentIndexChanged_Parameters_Dimension_1(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_2(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_3(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_4(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_5(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_6(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_7(const QString&) {}
    void slot_currentIndexChanged_Parameters_Dimension_8(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_1(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_2(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_3(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_4(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_5(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_6(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_7(const QString&) {}
    void slot_currentIndexChanged_Parameters_SensorType_8(const QString&) {}
    void slot_currentIndexChanged_Index_1(const QString&) {}
    void slot_currentIndexChanged_Index_2(const QString&) {}
    void slot_currentIndexChanged_Index_3(const QString&) {}
    void slot_currentIndexChanged_Index_4(const QString&) {}
    void slot_currentIndexChanged_Index_5(const QString&) {}
    void slot_currentIndexChanged_Index_6(const QString&) {}
    void slot_currentIndexChanged_Index_7(const QString&) {}
    void slot_currentIndexChanged_Index_8(const QString&) {}

Q_SIGNALS:
    void signal_Device_UserParam_Add_Uni(userParamType type, const QString& name, const QString& element);
    void signal_Device_UserParam_Del_Uni(userParamType type, const QString& name, const QString& element);
    void signal_Use_UserParam(bool use);
    void signal_Device_Index_Add_Uni(const QString& index);
    void signal_Device_Index_Del_Uni(const QString& index);
    void signal_Device_Index_Add_FlsL(const QString& index);
    void signal_Device_Index_Del_FlsL(const QString& index);
    void signal_Device_Index_Add_FlsT(const QString& index);
    void signal_Device_Index_Del_FlsT(const QString& index);
    void signal_Device_Index_Add_FlsF(const QString& index);
    void signal_Device_Index_Del_FlsF(const QString& index);
    void signal_Device_Index_Add_TmpT(const QString& index);
    void signal_Device_Index_Del_TmpT(const QString& index);
    void signal_Device_Index_Add_TmpH(const QString& index);
    void signal_Device_Index_Del_TmpH(const QString& index);

protected:
    void makeWidgets() override;

private:
    // What a row of values has told.
    struct Told
    {
        QString name; // of the parameter that it offers
        QString element;
        bool used = false;
        int target = 0;
        std::array<QString, kKinds> held; // the number that it holds, a kind
    };

    // The settings of a row that are told.
    struct Row
    {
        int group;
        int target;
        int index;
        int element;
    };

    const QString& valueOf(int row) const;
    bool isUsed(int row) const { return valueOf(rows_[row - 1].group) != QLatin1String("0"); }
    int target(int row) const { return valueOf(rows_[row - 1].target).toInt(); }
    const QString& element(int row) const { return valueOf(rows_[row - 1].element); }
    // " 7", empty for none.
    QString indexOf(int row) const;
    QString parameterName(int row, const QString& index) const;
    void takeUse(int row);
    void takeTarget(int row);
    void takeIndex(int row);
    void takeElement(int row);
    void offer(int row, const QString& name);
    void withdraw(int row);
    void hold(int row, int kind, const QString& index);

    std::array<Row, vlk::kUniversalValues> rows_{};
    std::array<Told, vlk::kUniversalValues> told_{};
};
