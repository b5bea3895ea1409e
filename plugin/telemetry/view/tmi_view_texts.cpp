#include "telemetry/view/tmi_view_texts.h"

#include "base/translated.h"
#include "ui_VLK_Designer_Widget_Tmi_View.h"

void setControlTexts(const Ui::VLK_Designer_Widget_Tmi_View& ui)
{
    const std::pair<QGroupBox*, const char*> groups[] = {
        {ui.groupBox_Btn_Get, "tmiw_003"},    {ui.groupBox_Btn_Auto, "tmiw_007"},
        {ui.groupBox_Btn_Guard, "tmiw_146"},  {ui.groupBox_Btn_Save, "tmiw_011"},
        {ui.groupBox_Btn_Clear, "tmiw_022"},  {ui.groupBox_Btn_Keys, "tmiw_025"},
        {ui.groupBox_Btn_Device, "tmiw_142"},
    };
    for (const auto& [group, key] : groups)
        group->setTitle(vlk::translated(key));
    const std::pair<QAbstractButton*, const char*> buttons[] = {
        {ui.pushButton_Get_Current, "tmiw_004"},
        {ui.pushButton_Get_Prev, "wrd_061"},
        {ui.pushButton_Get_Next, "wrd_062"},
        {ui.pushButton_Show, "tmiw_005"},
        {ui.checkBox_Get_Auto_TMI, "tmiw_008"},
        {ui.pushButton_Func, "tmiw_010"},
        {ui.pushButton_SaveToFile, "tmiw_014"},
        {ui.pushButton_SaveToExcel, "tmiw_015"},
        {ui.pushButton_SaveFileToServer, "tmiw_016"},
        {ui.pushButton_Save_Cancel, "tmiw_197"},
        {ui.pushButton_Clear, "tmiw_024"},
        {ui.pushButton_TM, "tmiw_030"},
        {ui.pushButton_RFID, "tmiw_195"},
        {ui.pushButton_Get_Current_Touch, "tmiw_140"},
        {ui.pushButton_Get_Current_RFID, "tmiw_141"},
        {ui.pushButton_Taho, "tmiw_196"},
        {ui.pushButton_FuelSensor, "tmiw_143"},
        {ui.pushButton_Set_NoGuard, "tmiw_144"},
        {ui.pushButton_Set_Guard, "tmiw_145"},
        {ui.pushButton_Help, "wrd_027"},
        {ui.pushButton_Close, "wrd_054"},
    };
    for (const auto& [button, key] : buttons)
        button->setText(vlk::translated(key));
    const std::pair<QLabel*, const char*> labels[] = {
        {ui.label_NoData, "tmiw_002"}, {ui.label_Show, "tmiw_006"},    {ui.label_TimeOffset, "tmiw_009"},
        {ui.label_First, "tmiw_012"},  {ui.label_Last, "tmiw_013"},    {ui.label_TM, "tmiw_028"},
        {ui.label_RFID, "tmiw_029"},   {ui.label_Records, "tmiw_151"},
    };
    for (const auto& [label, key] : labels)
        label->setText(vlk::translated(key));
    QCheckBox* const servers[] = {ui.checkBox_Server1, ui.checkBox_Server2, ui.checkBox_Server3};
    for (std::size_t i = 0; i < std::size(servers); ++i)
        servers[i]->setText(QStringLiteral("%1 %2").arg(vlk::translated("tmiw_023")).arg(i + 1));
    ui.spinBox_TimeOffset->setSuffix(QLatin1Char(' ') + vlk::translated("abbr_001"));
    ui.horizontalSlider_Auto_Tmi->setAccessibleName(vlk::translated("tmiw_007"));
    ui.spinBox_RFID->setSuffix(QLatin1Char(' ') + vlk::translated("abbr_050"));
    ui.spinBox_RFID->setAccessibleName(vlk::translated("tmiw_147"));
}

std::vector<QWidget*> manualControls(const Ui::VLK_Designer_Widget_Tmi_View& ui)
{
    return {ui.groupBox_Btn_Get,           ui.groupBox_Btn_Save, ui.pushButton_Taho,
            ui.pushButton_FuelSensor,      ui.pushButton_RFID,   ui.pushButton_Get_Current_Touch,
            ui.pushButton_Get_Current_RFID};
}

void setToolTips(const Ui::VLK_Designer_Widget_Tmi_View& ui, const char* reasonKey)
{
    const std::pair<QWidget*, const char*> tips[] = {
        {ui.pushButton_SaveToFile, "tmiw_148"},
        {ui.pushButton_SaveToExcel, "tmiw_149"},
        {ui.pushButton_SaveFileToServer, "tmiw_150"},
        {ui.spinBox_RFID, "tmiw_147"},
        {ui.label_Capability, "tmiw_178"},
    };
    const QString reason = reasonKey ? vlk::translated(reasonKey) : QString();
    for (QWidget* control : manualControls(ui))
        control->setToolTip(reason);
    ui.checkBox_Get_Auto_TMI->setToolTip(ui.checkBox_Get_Auto_TMI->isEnabled() ? QString() : reason);
    // Without a tool tip of its own a control shows that of its group.
    for (const auto& [widget, key] : tips)
        widget->setToolTip(widget->isEnabled() ? vlk::translated(key) : QString());
}
