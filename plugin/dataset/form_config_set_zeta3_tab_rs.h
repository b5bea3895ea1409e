#pragma once

// The tab of the sensors at the ports that a tracker model has: levels, temperatures and frequencies.

#include "dataset/data_set_boxes_tab.h"

class QLabel;

class VLK_Form_Config_Set_Zeta3_Tab_RS : public vlk::DataSetBoxesTab
{
    Q_OBJECT

public:
    struct Ports
    {
        bool rs232;
        bool rs485;
        bool bluetooth;
    };

    VLK_Form_Config_Set_Zeta3_Tab_RS(int index, Ports ports, QWidget* parent = nullptr);

    void retranslate() override;
    void enableFormat20(bool on) override;

private:
    const Ports ports_;
    QLabel* levels_;
    QLabel* frequencies_;
    bool withTemperatures_ = false;
};
