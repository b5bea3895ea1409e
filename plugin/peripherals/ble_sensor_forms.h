#pragma once

// The forms of the wireless sensors under the names by which other programs know them. Those with a number
// tell its changes under a name of their own too: as texts of the list, and those that share the numbers of
// temperatures as numbers.

#include "peripherals/ble_sensor_form.h"

class VLK_Form_Config_Ble_DevType_FLS : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_FS_Type(const QString&) {}
    void slot_currentIndexChanged_FS_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_FS(const QString& give, const QString& take);

protected:
    void tellIndex(int give, int take) override;
};

class VLK_Form_Config_Ble_DevType_Temp : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_TS_Type(const QString&) {}
    void slot_currentIndexChanged_TS_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_TS(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_TS(int give, int take);

protected:
    void tellIndex(int give, int take) override;
};

class VLK_Form_Config_Ble_DevType_AS : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
    void slot_currentIndexChanged_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_AS(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_AS(int give, int take);

protected:
    void tellIndex(int give, int take) override;
};

class VLK_Form_Config_Ble_DevType_US : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
    void slot_currentIndexChanged_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_US(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_US(int give, int take);

protected:
    void tellIndex(int give, int take) override;
};

class VLK_Form_Config_Ble_DevType_AIN : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
    void slot_currentIndexChanged_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_AIN(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_AIN(int give, int take);

protected:
    void tellIndex(int give, int take) override;
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
