#pragma once

// The tab of high-precision sensors and of equipment that only some vehicles have.

#include "dataset/data_set_boxes_tab.h"

class VLK_Form_Config_Set_Zeta3_Tab_More : public vlk::DataSetBoxesTab
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab_More(int index, QWidget* parent = nullptr);

public Q_SLOTS:
    // Other programs know it by this name; the choice itself does all.
    void slot_currentIndexChanged_More_Tires(int) {}
};
