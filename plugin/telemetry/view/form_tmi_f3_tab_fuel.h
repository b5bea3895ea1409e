#pragma once

// Fuel level sensors and the fuel flow sensor.

#include "telemetry/view/form_tmi_f3_tab.h"

class VLK_Form_Tmi_F3_Tab_Fuel : public VLK_Form_Tmi_F3_Tab
{
    Q_OBJECT

public:
    explicit VLK_Form_Tmi_F3_Tab_Fuel(QWidget* parent = nullptr);
};
