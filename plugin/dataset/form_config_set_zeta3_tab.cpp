#include "dataset/form_config_set_zeta3_tab.h"

VLK_Form_Config_Set_Zeta3_Tab::VLK_Form_Config_Set_Zeta3_Tab(int index, QWidget* parent)
    : QWidget(parent), index_(index), title_(QStringLiteral("Tab%1").arg(index))
{
}
