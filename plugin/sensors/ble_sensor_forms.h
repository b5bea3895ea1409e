#pragma once

// The forms of the wireless sensors that the list of types offers, under the names by which other programs
// know them. They tell changes of the number under a name of their own too: as texts of the list, and those
// that share the numbers of temperatures as numbers. The slots name edits that the settings take from the
// lists themselves. Forms of other types: absent/forms/unlisted_sensor_forms.h.

#include "sensors/ble_sensor_form.h"

class VLK_Form_Config_Ble_DevType_FLS : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;
    void tellIndex(int give, int take) override;

public Q_SLOTS:
    void slot_currentIndexChanged_FS_Type(const QString&) {}
    void slot_currentIndexChanged_FS_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_FS(const QString& give, const QString& take);
};

class VLK_Form_Config_Ble_DevType_Temp : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;
    void tellIndex(int give, int take) override;

public Q_SLOTS:
    void slot_currentIndexChanged_TS_Type(const QString&) {}
    void slot_currentIndexChanged_TS_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_TS(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_TS(int give, int take);
};

class VLK_Form_Config_Ble_DevType_US : public vlk::BleSensorForm
{
    Q_OBJECT

public:
    using BleSensorForm::BleSensorForm;
    void tellIndex(int give, int take) override;

public Q_SLOTS:
    void slot_currentIndexChanged_Type(const QString&) {}
    void slot_currentIndexChanged_Idx(const QString&) {}

Q_SIGNALS:
    void signal_ChangeIdx_Dev_US(const QString& give, const QString& take);
    void signal_ChangeIdx_Dev_Int_US(int give, int take);
};
