#include "telemetry/view/equipment_windows.h"

#include "fuel/form_tmi_fuel_sensors.h"
#include "telemetry/tachograph/form_tmi_taho.h"

namespace vlk {

bool EquipmentWindows::openTachograph()
{
    const bool isNew = !tachograph_;
    if (isNew)
        tachograph_ = new VLK_Form_TMI_Taho(view_);
    tachograph_->open();
    return isNew;
}

void EquipmentWindows::openFuelSensors(const QString& vehicle)
{
    if (!fuelSensors_)
        fuelSensors_ = new VLK_Form_TMI_Fuel_Sensors(view_);
    if (fuelSensors_->isVisible() && fuelSensors_->hasRows()) {
        fuelSensors_->raise();
        fuelSensors_->activateWindow();
    } else {
        fuelSensors_->openWindow(vehicle);
    }
}

void EquipmentWindows::linkFound()
{
    if (fuelSensors_)
        fuelSensors_->linkFound();
}

void EquipmentWindows::linkLost()
{
    if (tachograph_)
        tachograph_->close();
    if (fuelSensors_)
        fuelSensors_->linkLost();
}

void EquipmentWindows::closeFuelSensors()
{
    if (fuelSensors_)
        fuelSensors_->close();
}

void EquipmentWindows::retranslate()
{
    if (tachograph_)
        tachograph_->retranslate();
    if (fuelSensors_)
        fuelSensors_->retranslate();
}

void EquipmentWindows::takeTachographAnswer(const QByteArray& answer)
{
    if (tachograph_)
        tachograph_->takeAnswer(answer);
}

void EquipmentWindows::takeTachographFetched(bool done)
{
    if (tachograph_)
        tachograph_->takeFetched(done);
}

void EquipmentWindows::takeAnalog(const uchar* record)
{
    if (fuelSensors_)
        fuelSensors_->onLiveRecord(record);
}

} // namespace vlk
