#pragma once

// The texts of the controls of the telemetry view, in the language of the moment.

namespace Ui {
class VLK_Designer_Widget_Tmi_View;
}

void setControlTexts(const Ui::VLK_Designer_Widget_Tmi_View& ui);
