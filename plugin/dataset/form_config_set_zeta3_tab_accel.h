#pragma once

// The tab of the accelerometer and of the driving style.

#include "dataset/data_set_boxes_tab.h"

class VLK_Form_Config_Set_Zeta3_Tab_Accel : public vlk::DataSetBoxesTab
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab_Accel(int index, QWidget* parent = nullptr);
};
