#pragma once

// The accelerometer: shocks, accelerations and the thresholds of driving style.

#include "telemetry/view/form_tmi_f3_tab.h"

class VLK_Form_Tmi_F3_Tab_Accel : public VLK_Form_Tmi_F3_Tab
{
    Q_OBJECT

public:
    explicit VLK_Form_Tmi_F3_Tab_Accel(QWidget* parent = nullptr);
};
