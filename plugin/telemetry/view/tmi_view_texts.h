#pragma once

// The texts and tool tips of the controls of the telemetry view, in the language of the moment.

#include <vector>

class QWidget;

namespace Ui {
class VLK_Designer_Widget_Tmi_View;
}

void setControlTexts(const Ui::VLK_Designer_Widget_Tmi_View& ui);

// The controls that ask the tracker for something, or save: off while the view does so by itself.
std::vector<QWidget*> manualControls(const Ui::VLK_Designer_Widget_Tmi_View& ui);

// With a reason (its key) all manual controls say why they are off.
void setToolTips(const Ui::VLK_Designer_Widget_Tmi_View& ui, const char* reasonKey);
