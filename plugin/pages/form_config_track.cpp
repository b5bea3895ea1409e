#include "pages/form_config_track.h"

#include "ui_VLK_Designer_Form_Config_Track.h"

#include "settings/track_settings.h"
#include "windows/wnd_config_full.h"

VLK_Form_Config_Track::VLK_Form_Config_Track(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::VLK_Designer_Form_Config_Track>()),
      settings_(vlk::kTrackSettings, "cfgt3_001")
{
    ui_->setupUi(this);
    settings_.bind({this});
    connect(ui_->pushButton_ParkingAccel, &QPushButton::clicked, this,
            &VLK_Form_Config_Track::slot_pressed_BtnParkingAccel);
    retranslate();
    setDefaults();
}

VLK_Form_Config_Track::~VLK_Form_Config_Track() = default;

void VLK_Form_Config_Track::retranslate()
{
    ui_->retranslateUi(this);
    settings_.retranslate();
}

void VLK_Form_Config_Track::slot_pressed_BtnParkingAccel()
{
    if (vlkConfigFull)
        vlkConfigFull->gotoAccel();
}
