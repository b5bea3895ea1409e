#pragma once

// The form of the universal wireless sensor: conditions for the messages that are taken, and values in them,
// each with what it is in the tracker. Rows, lists and what rows do to each other are settings
// (settings/bluetooth_universal_rows.h). Its signals tell of the user parameters that its rows offer, and of
// the numbers that they take, of six kinds (sensor_teller.h).

#include "sensors/ble_sensor_form.h"

class VLK_Form_Config_Ble_DevType_Uni : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

    // The name of the parameter with a key such as "up7", empty for one that no row offers.
    QString keyToDisplay(const QString& key) const;
    void setDefaults() override;
    // Unchecks the boxes of the check against an example message.
    void clearTests();
    void retranslate() override;

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
};
