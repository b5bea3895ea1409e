#pragma once

// The tab of position, motion, satellites and base stations.

#include "dataset/data_set_boxes_tab.h"

class VLK_Form_Config_Set_Zeta3_Tab_Navi : public vlk::DataSetBoxesTab
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab_Navi(int index, QWidget* parent = nullptr);
};
