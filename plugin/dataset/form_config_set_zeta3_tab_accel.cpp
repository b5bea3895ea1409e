#include "dataset/form_config_set_zeta3_tab_accel.h"

VLK_Form_Config_Set_Zeta3_Tab_Accel::VLK_Form_Config_Set_Zeta3_Tab_Accel(int index, QWidget* parent)
    : DataSetBoxesTab(vlk::DataSetTab::Accel, index, "cfgt2f_081", parent)
{
}
