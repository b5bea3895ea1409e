#pragma once

// The device itself, its connections and where it is; sets the mileage.

#include "telemetry/view/form_tmi_f3_tab.h"

class QProgressBar;
class QPushButton;
class QRadioButton;

class VLK_Form_Tmi_F3_Tab_Main : public VLK_Form_Tmi_F3_Tab
{
    Q_OBJECT

public:
    // What not every model has.
    enum Part {
        Common,
        Evacuation,
        WiFi,
        Iridium,
        OpenSensor,
        ComplexEvents,
        Motochas,
        MotochasLoad,
        NaviExt,
        Geo,
    };

    explicit VLK_Form_Tmi_F3_Tab_Main(QWidget* parent = nullptr);

    using VLK_Form_Tmi_F3_Tab::setPartVisible;
    QWidget* commands() const;
    void fill(const TmiPage_Zeta3& page) override;
    void retranslate() override;

Q_SIGNALS:
    void signal_Set_Run(float kilometres);

private Q_SLOTS:
    void slot_pressed_Btn_SetRun();

private:
    void addGsm();
    void addNavigation();

    QProgressBar* level_;
    vlk::DashedValue* levelShown_ = nullptr;
    vlk::DashedValue* cardShown_ = nullptr;
    QRadioButton* sim1_;
    QRadioButton* sim2_;
    QPushButton* run_;
};
