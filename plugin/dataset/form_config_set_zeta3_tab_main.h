#pragma once

// The tab of what every record has and of the states, lines, voltages and temperatures of the tracker.

#include "dataset/data_set_boxes_tab.h"

class VLK_Form_Config_Set_Zeta3_Tab_Main : public vlk::DataSetBoxesTab
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Set_Zeta3_Tab_Main(int index, QWidget* parent = nullptr);

    void enableFormat30(bool on) override;

    // Whether the engine hours under load and without load are there to choose.
    void setEngineHoursOffered(bool offered);

private:
    bool engineHoursOffered_ = true;
};
