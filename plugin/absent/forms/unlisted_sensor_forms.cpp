#include "absent/forms/unlisted_sensor_forms.h"

void VLK_Form_Config_Ble_DevType_AS::tellIndex(int give, int take)
{
    BleSensorForm::tellIndex(give, take);
    Q_EMIT signal_ChangeIdx_Dev_AS(indexText(give), indexText(take));
    Q_EMIT signal_ChangeIdx_Dev_Int_AS(give, take);
}

void VLK_Form_Config_Ble_DevType_AIN::tellIndex(int give, int take)
{
    BleSensorForm::tellIndex(give, take);
    Q_EMIT signal_ChangeIdx_Dev_AIN(indexText(give), indexText(take));
    Q_EMIT signal_ChangeIdx_Dev_Int_AIN(give, take);
}
