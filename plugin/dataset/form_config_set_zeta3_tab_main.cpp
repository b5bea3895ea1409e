#include "dataset/form_config_set_zeta3_tab_main.h"

VLK_Form_Config_Set_Zeta3_Tab_Main::VLK_Form_Config_Set_Zeta3_Tab_Main(int index, QWidget* parent)
    : DataSetBoxesTab(vlk::DataSetTab::Main, index, "cfgt2f_001", parent)
{
}

void VLK_Form_Config_Set_Zeta3_Tab_Main::enableFormat30(bool on)
{
    DataSetBoxesTab::enableFormat30(on);
    box("checkBox_Motochas_3")->setEnabled(on && engineHoursOffered_);
}

void VLK_Form_Config_Set_Zeta3_Tab_Main::setEngineHoursOffered(bool offered)
{
    engineHoursOffered_ = offered;
    box("checkBox_Motochas_2")->setEnabled(offered);
    box("checkBox_Motochas_3")->setEnabled(offered);
}
