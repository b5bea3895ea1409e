#include "dataset/form_config_set_zeta3_tab_navi.h"

VLK_Form_Config_Set_Zeta3_Tab_Navi::VLK_Form_Config_Set_Zeta3_Tab_Navi(int index, QWidget* parent)
    : DataSetBoxesTab(vlk::DataSetTab::Navi, index, "cfgt2f_026", parent)
{
}
