#pragma once

// The Track page: when the tracker writes a point, which coordinates it rejects, what it does at stops, which
// satellites it listens to. Its settings are those of the section TRACK (settings/track_settings.h).

#include "windows/binder/page_settings.h"

#include <QWidget>

#include <memory>

namespace Ui {
class VLK_Designer_Form_Config_Track;
}

class VLK_Form_Config_Track : public QWidget
{
    Q_OBJECT

public:
    explicit VLK_Form_Config_Track(QWidget* parent = nullptr);
    ~VLK_Form_Config_Track() override;

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
    void slot_stateChanged_Always_MaxSpeed(int) {}
    void slot_stateChanged_Additional_Corner(int) {}
    void slot_stateChanged_Additional_Direction(int) {}
    void slot_stateChanged_Additional_Metr(int) {}
    void slot_stateChanged_Additional_Sec(int) {}
    void slot_stateChanged_Restriction_Metr(int) {}
    void slot_stateChanged_Restriction_Sec(int) {}
    void slot_stateChanged_GPSreject_Use(int) {}
    void slot_clicked_rBtn_Average(bool) {}
    void slot_pressed_BtnParkingAccel();

private:
    std::unique_ptr<Ui::VLK_Designer_Form_Config_Track> ui_;
    vlk::PageSettings settings_;
};
