#pragma once

// The forms of the wireless sensors that this tracker's list of types does not offer, as those of
// sensors/ble_sensor_forms.h.

#include "sensors/ble_sensor_form.h"

class VLK_Form_Config_Ble_DevType_AS : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;
    void tellIndex(int give, int take) override;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
    void slot_currentIndexChanged_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_AS(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_AS(int give, int take);
};

class VLK_Form_Config_Ble_DevType_AIN : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;
    void tellIndex(int give, int take) override;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
    void slot_currentIndexChanged_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_AIN(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_AIN(int give, int take);
};

class VLK_Form_Config_Ble_DevType_AXS : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
};

class VLK_Form_Config_Ble_DevType_FW : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
};

class VLK_Form_Config_Ble_DevType_HS : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
};
