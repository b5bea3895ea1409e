#pragma once

// The Temperature sensors page: for each of the four sensors the bounds of its normal range, outside of which
// lie the alarm zones, a hysteresis and a filter. Its settings are those of the section TEMPSENS
// (settings/temperature_settings.h).

#include "windows/binder/page_settings.h"

#include <QWidget>

#include <array>

class QGroupBox;
class QLabel;
class VLK_DblSlider2;

class VLK_Form_Config_Sensors_Temp : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Sensors_Temp(QWidget* parent = nullptr);

    QString title() const { return settings_.title(); }
    int tabIndex() const { return settings_.tabIndex(); }
    void setTabIndex(int index) { settings_.setTabIndex(index); }
    void retranslate();
    void setDefaults() { settings_.setDefaults(); }
    void loadFromXml(CXmlSection* root) { settings_.load(root); }
    void saveToXml(CXmlSection* root) { settings_.save(root); }
    vlk::PageSettings& settings() { return settings_; }

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_value1Changed_Left_Temp_1(double) {}
    void slot_value1Changed_Left_Temp_2(double) {}
    void slot_value1Changed_Left_Temp_3(double) {}
    void slot_value1Changed_Left_Temp_4(double) {}
    void slot_value2Changed_Right_Temp_1(double) {}
    void slot_value2Changed_Right_Temp_2(double) {}
    void slot_value2Changed_Right_Temp_3(double) {}
    void slot_value2Changed_Right_Temp_4(double) {}
    void slot_valueChanged_DSpinBox_Left_Temp_1(double) {}
    void slot_valueChanged_DSpinBox_Left_Temp_2(double) {}
    void slot_valueChanged_DSpinBox_Left_Temp_3(double) {}
    void slot_valueChanged_DSpinBox_Left_Temp_4(double) {}
    void slot_valueChanged_DSpinBox_Right_Temp_1(double) {}
    void slot_valueChanged_DSpinBox_Right_Temp_2(double) {}
    void slot_valueChanged_DSpinBox_Right_Temp_3(double) {}
    void slot_valueChanged_DSpinBox_Right_Temp_4(double) {}
    void slot_valueChanged_SpinBox_Hyst_1(int) {}
    void slot_valueChanged_SpinBox_Hyst_2(int) {}
    void slot_valueChanged_SpinBox_Hyst_3(int) {}
    void slot_valueChanged_SpinBox_Hyst_4(int) {}

private:
    // What is translated here and not by the settings.
    struct Sensor
    {
        QGroupBox* group;
        VLK_DblSlider2* slider;
        QLabel* lowEnd;
        QLabel* highEnd;
        std::array<QLabel*, 2> zones;
    };

    Sensor makeSensor(int number);

    std::array<Sensor, 4> sensors_;
    vlk::PageSettings settings_;
};
