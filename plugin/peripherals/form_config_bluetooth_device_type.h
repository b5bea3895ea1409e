#pragma once

// What one wireless sensor has beside its type, address and name: a stack with a form for every type
// (settings/bluetooth_sensor_types.h), of which that of the sensor's type is on show. It hands on what the
// forms tell, with the sensor's number in: user parameters by code, name and size, and numbers taken
// and given back.

#include "settings/user_param_types.h"

#include <QWidget>

#include <memory>
#include <vector>

class QStackedWidget;
class VLK_Form_Config_Ble_DevType_Uni;
class VLK_UserParams;
struct CXmlSection;

namespace vlk {
class BleSensorForm;
class PageSettings;
class SensorTeller;
} // namespace vlk

class VLK_Form_Config_Bluetooth_Device_Type : public QWidget
{
    Q_OBJECT

public:
    // `sensor` counts from 1.
    VLK_Form_Config_Bluetooth_Device_Type(int sensor, vlk::PageSettings& settings, QWidget* parent = nullptr);
    ~VLK_Form_Config_Bluetooth_Device_Type() override;

    // Shows the form of a type, whether the list of types offers it or not; 0 and unknown types have none.
    void selectType(int type);
    int type() const { return type_; }
    void loadForm(int type, CXmlSection* bluetooth);
    void saveForm(int type, CXmlSection* bluetooth) const;
    void resetForms();
    void clearTests();
    void retranslate();
    // Follows the settings after an edit, a load or a reset.
    void tellChanges();

    // Display text of a stored user parameter, and the way back; empty for an unknown one.
    QString keyToDisplay(const QString& key) const;
    QString displayToKey(const QString& text) const;

public Q_SLOTS:
    void slot_ChangeIdx_Dev_FS(const QString& give, const QString& take);
    void slot_ChangeIdx_Dev_Int_Temp(int give, int take) { Q_EMIT signal_ChangeIdxTS_Int(give, take); }
    void slot_ChangeIdx_Dev_Int_AS(int give, int take) { Q_EMIT signal_ChangeIdxTS_Int(give, take); }
    void slot_ChangeIdx_Dev_Int_US(int give, int take) { Q_EMIT signal_ChangeIdxTS_Int(give, take); }
    void slot_ChangeIdx_Dev_Int_AIN(int give, int take) { Q_EMIT signal_ChangeIdxAIN_Int(give, take); }
    void slot_Device_UserParam_Add(userParamType type);
    void slot_Device_UserParam_Del(userParamType type);
    void slot_Device_UserParam_Add_Uni(userParamType type, const QString& name, const QString& element);
    void slot_Device_UserParam_Del_Uni(userParamType type, const QString& name, const QString& element);
    void slot_Device_UserParam_Add_US(userParamType type, const QString& name, const QString& element)
    {
        slot_Device_UserParam_Add_Uni(type, name, element);
    }
    void slot_Device_UserParam_Del_US(userParamType type, const QString& name, const QString& element)
    {
        slot_Device_UserParam_Del_Uni(type, name, element);
    }
    void slot_Device_Index_Add_Uni(const QString& index) { Q_EMIT signal_Index_Add_Uni(index); }
    void slot_Device_Index_Del_Uni(const QString& index) { Q_EMIT signal_Index_Del_Uni(index); }
    void slot_Device_Index_Add_FlsL(const QString& index) { Q_EMIT signal_Index_Add_FlsL(index); }
    void slot_Device_Index_Del_FlsL(const QString& index) { Q_EMIT signal_Index_Del_FlsL(index); }
    void slot_Device_Index_Add_FlsT(const QString& index) { Q_EMIT signal_Index_Add_FlsT(index); }
    void slot_Device_Index_Del_FlsT(const QString& index) { Q_EMIT signal_Index_Del_FlsT(index); }
    void slot_Device_Index_Add_FlsF(const QString& index) { Q_EMIT signal_Index_Add_FlsF(index); }
    void slot_Device_Index_Del_FlsF(const QString& index) { Q_EMIT signal_Index_Del_FlsF(index); }
    void slot_Device_Index_Add_TmpT(const QString& index) { Q_EMIT signal_Index_Add_TmpT(index); }
    void slot_Device_Index_Del_TmpT(const QString& index) { Q_EMIT signal_Index_Del_TmpT(index); }
    void slot_Device_Index_Add_TmpH(const QString& index) { Q_EMIT signal_Index_Add_TmpH(index); }
    void slot_Device_Index_Del_TmpH(const QString& index) { Q_EMIT signal_Index_Del_TmpH(index); }
    void slot_Use_UserParam(bool use) { Q_EMIT signal_UserParam_Use(use); }
    void slot_SetSensorNameEnabled(bool on) { Q_EMIT signalEnabledSensorName(on); }

Q_SIGNALS:
    void signal_ChangeIdxFS(const QString& give, const QString& take);
    void signal_ChangeIdxTS_Int(int give, int take);
    void signal_ChangeIdxAIN_Int(int give, int take);
    void signal_UserParam_Add(const QString& code, const QString& name, const QString& third, int size);
    void signal_UserParam_Del(const QString& code, const QString& name, const QString& third, int size);
    void signal_UserParam_Use(bool use);
    void signalEnabledSensorName(bool on);
    void signal_Index_Add_Uni(const QString& index);
    void signal_Index_Del_Uni(const QString& index);
    void signal_Index_Add_FlsL(const QString& index);
    void signal_Index_Del_FlsL(const QString& index);
    void signal_Index_Add_FlsT(const QString& index);
    void signal_Index_Del_FlsT(const QString& index);
    void signal_Index_Add_FlsF(const QString& index);
    void signal_Index_Del_FlsF(const QString& index);
    void signal_Index_Add_TmpT(const QString& index);
    void signal_Index_Del_TmpT(const QString& index);
    void signal_Index_Add_TmpH(const QString& index);
    void signal_Index_Del_TmpH(const QString& index);

protected:
    bool event(QEvent* event) override;

private:
    vlk::BleSensorForm* formOf(int type) const;
    void addForm(vlk::BleSensorForm* form);
    void connectNumbers(vlk::BleSensorForm* form);
    void connectUniversal();
    void showType(int type);
    void fitHeight();

    const int sensor_;
    vlk::PageSettings& settings_;
    std::unique_ptr<VLK_UserParams> params_;
    QStackedWidget* stack_;
    std::vector<vlk::BleSensorForm*> forms_; // in the order of the table of types
    VLK_Form_Config_Ble_DevType_Uni* universal_ = nullptr;
    std::unique_ptr<vlk::SensorTeller> teller_;
    int type_ = 0;
};
