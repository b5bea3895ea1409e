#include "sensors/ble_sensor_forms.h"

void VLK_Form_Config_Ble_DevType_FLS::tellIndex(int give, int take)
{
    BleSensorForm::tellIndex(give, take);
    Q_EMIT signal_ChangeIdx_Dev_FS(indexText(give), indexText(take));
}

void VLK_Form_Config_Ble_DevType_Temp::tellIndex(int give, int take)
{
    BleSensorForm::tellIndex(give, take);
    Q_EMIT signal_ChangeIdx_Dev_TS(indexText(give), indexText(take));
    Q_EMIT signal_ChangeIdx_Dev_Int_TS(give, take);
}

void VLK_Form_Config_Ble_DevType_US::tellIndex(int give, int take)
{
    BleSensorForm::tellIndex(give, take);
    Q_EMIT signal_ChangeIdx_Dev_US(indexText(give), indexText(take));
    Q_EMIT signal_ChangeIdx_Dev_Int_US(give, take);
}
