#pragma once

// The virtual sensors that the tracker makes of its accelerometer: the level at which each triggers, and
// beside it what an attached tracker measures now, asked for once or again and again. Its settings are those
// of the section ACCEL (settings/accel_settings.h); what is measured is not stored.

#include "windows/binder/page_settings.h"
#include "windows/present_age.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>

class QDoubleSpinBox;
class QLineEdit;
class QSlider;

namespace vlk {
struct AccelValues;
}

namespace Ui {
class VLK_Designer_Form_Config_Accel_Virtual;
}

class VLK_Form_Config_Accel_Virtual : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Accel_Virtual(QWidget* parent = nullptr);
    ~VLK_Form_Config_Accel_Virtual() override;

    // The place of this form among the inner tabs.
    int tabIndex() const { return tabIndex_; }
    void setTabIndex(int index) { tabIndex_ = index; }
    void retranslate();
    void setDefaults();
    vlk::PageSettings& settings() { return settings_; }

    void deviceConnected();
    void deviceDisconnected();
    // An answer of the tracker; without a request it is dropped.
    void showPresentValues(const vlk::AccelValues& values);
    void clearPresentValues();
    void stopAuto();
    // While the user works in another window, and when that is over.
    void pauseAuto();
    void resumeAuto();

public Q_SLOTS:
    // An empty one names an edit that the settings take from its widget themselves.
    void slot_valueChanged_horizontalSlider_Level_SH1(int) {}
    void slot_valueChanged_horizontalSlider_Level_SH2(int) {}
    void slot_valueChanged_horizontalSlider_Level_SH3(int) {}
    void slot_valueChanged_horizontalSlider_Level_SH4(int) {}
    void slot_valueChanged_doubleSpinBox_Level_SH1(double) {}
    void slot_valueChanged_doubleSpinBox_Level_SH2(double) {}
    void slot_valueChanged_doubleSpinBox_Level_SH3(double) {}
    void slot_valueChanged_doubleSpinBox_Level_SH4(double) {}
    void slot_textChanged_LineEdit_CurLevel_SH1(const QString&) {}
    void slot_textChanged_LineEdit_CurLevel_SH2(const QString&) {}
    void slot_textChanged_LineEdit_CurLevel_SH3(const QString&) {}
    void slot_textChanged_LineEdit_CurLevel_SH4(const QString&) {}
    void slot_stateChanged_checkBox_Auto(int state);
    void slot_pressed_pushButton_Quest();
    void slot_pressed_pushButton_Reset();
    void slot_timeOut_Query();

private:
    struct Sensor
    {
        QSlider* levelSlider;
        QDoubleSpinBox* level;
        QSlider* present;
        QLineEdit* presentText;
    };

    Sensor makeSensor(std::size_t index);
    void setTabOrder();
    void showPresent(std::size_t index, const QString& number);
    void compare(const Sensor& sensor) const;
    void compareAll();

    std::unique_ptr<Ui::VLK_Designer_Form_Config_Accel_Virtual> ui_;
    std::array<Sensor, 4> sensors_;
    int tabIndex_ = -1;
    bool monitoring_ = false;
    bool pending_ = false; // present values are awaited
    QTimer query_{this};
    vlk::PresentAge age_;
    vlk::PageSettings settings_;
};
