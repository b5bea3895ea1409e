#pragma once

// The System page: passwords, time, the supply voltage and what is told by it. Its settings are those of the
// section SYSTEM (settings/system_settings.h). Beside them it shows the present supply voltage of an attached
// tracker.

#include "windows/binder/page_settings.h"

#include <QWidget>

#include <memory>

namespace Ui {
class VLK_Designer_Form_Config_System;
}

class VLK_Form_Config_System : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_System(QWidget* parent = nullptr);
    ~VLK_Form_Config_System() override;

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults();
    void loadFromXml(CXmlSection* root) { settings_.load(root); }
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }

    void deviceConnected();
    void deviceDisconnected();
    void setCurrentSupply(int millivolts);

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_pressed_Btn_TuningCur();
    void slot_pressed_Btn_Psw_Warning();
    void slot_stateChanged_Tuning(int) {}
    void slot_valueChanged_HSlider_Tuning(int) {}
    void slot_valueChanged_DSpinBox_Tuning(double) {}
    void slot_stateChanged_Engine_Delay(int) {}
    void slot_stateChanged_NTP_Use(int) {}
    void slot_value1Changed_Power_Left(double) {}
    void slot_value2Changed_Power_Right(double) {}
    void slot_valueChanged_DSpinBox_Power_Left(double) {}
    void slot_valueChanged_DSpinBox_Power_Right(double) {}
    void slot_stateChanged_Power_Line(int) {}
    void slot_stateChanged_Power_Delay(int) {}
    void slot_stateChanged_Fuel_Level(int) {}
    void slot_value1Changed_Fuel_Left(double) {}
    void slot_value2Changed_Fuel_Right(double) {}
    void slot_valueChanged_DSpinBox_Fuel_Left(double) {}
    void slot_valueChanged_DSpinBox_Fuel_Right(double) {}

private:
    std::unique_ptr<Ui::VLK_Designer_Form_Config_System> ui_;
    vlk::PageSettings settings_;
};
