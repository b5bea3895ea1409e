#include "pages/form_config_system.h"

#include "ui_VLK_Designer_Form_Config_System.h"

#include "settings/system_settings.h"
#include "typing/present_value.h"
#include "windows/disabled_reason.h"
#include "windows/page_style.h"
#include "windows/wnd_config_full.h"
#include "windows/zone_colors.h"

#include <QMessageBox>

VLK_Form_Config_System::VLK_Form_Config_System(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_System>()),
      settings_(vlk::kSystemSettings, "cfgt4_001")
{
    ui_->setupUi(this);
    settings_.bind({this});
    for (VLK_DblSlider2* slider : {ui_->slider_Power, ui_->slider_Fuel}) {
        slider->setColorLow(vlk::kTriggerColor);
        slider->setColorHigh(vlk::kRestoreColor);
    }
    vlk::showAsPresent(ui_->doubleSpinBox_TuningCur);
    vlk::tellWhyDisabled(ui_->pushButton_TuningCur, "cfgt6_450");
    using This = VLK_Form_Config_System;
    connect(ui_->pushButton_TuningCur, &QPushButton::clicked, this, &This::slot_pressed_Btn_TuningCur);
    connect(ui_->pushButton_Psw_Warning, &QPushButton::clicked, this, &This::slot_pressed_Btn_Psw_Warning);
    retranslate();
    setDefaults();
}

VLK_Form_Config_System::~VLK_Form_Config_System() = default;

void VLK_Form_Config_System::retranslate()
{
    ui_->retranslateUi(this);
    settings_.retranslate();
    ui_->label_Psw_Warning->setText(QStringLiteral("%1!\n%2.").arg(tr("wrd_005").toUpper(), tr("cfgt4_008")));
    ui_->doubleSpinBox_TuningCur->setSuffix(QLatin1Char(' ') + tr("abbr_011"));
    const auto labelEnd = [](QLabel* label, double volts) {
        label->setText(QStringLiteral("%1 %2").arg(volts).arg(tr("abbr_011")));
    };
    labelEnd(ui_->label_Power_Min, ui_->slider_Power->minimum());
    labelEnd(ui_->label_Power_Max, ui_->slider_Power->maximum());
    labelEnd(ui_->label_Fuel_Min, ui_->slider_Fuel->minimum());
    labelEnd(ui_->label_Fuel_Max, ui_->slider_Fuel->maximum());
}

void VLK_Form_Config_System::setDefaults()
{
    vlk::showNoPresentValue(ui_->doubleSpinBox_TuningCur);
    settings_.setDefaults();
}

void VLK_Form_Config_System::deviceConnected()
{
    ui_->pushButton_TuningCur->setEnabled(true);
}

void VLK_Form_Config_System::deviceDisconnected()
{
    ui_->pushButton_TuningCur->setEnabled(false);
}

void VLK_Form_Config_System::setCurrentSupply(int millivolts)
{
    vlk::showPresentValue(ui_->doubleSpinBox_TuningCur, millivolts / 1000.0);
}

void VLK_Form_Config_System::slot_pressed_Btn_TuningCur()
{
    if (vlkConfigFull)
        vlkConfigFull->pollCurrentTab();
}

void VLK_Form_Config_System::slot_pressed_Btn_Psw_Warning()
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("%1!").arg(tr("wrd_005")), tr("cfgt4_090"),
                    QMessageBox::NoButton, this);
    vlk::dressMessageBox(box);
    box.addButton(tr("wrd_003"), QMessageBox::AcceptRole);
    box.exec();
}
