#include "dataset/form_config_set_zeta3_tab_more.h"

VLK_Form_Config_Set_Zeta3_Tab_More::VLK_Form_Config_Set_Zeta3_Tab_More(int index, QWidget* parent)
    : DataSetBoxesTab(vlk::DataSetTab::More, index, "cfgt2f_124", parent)
{
}
