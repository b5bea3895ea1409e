#pragma once

// The windows that the telemetry view opens for what hangs on the tracker: the tachograph's and that in which
// fuel sensors are calibrated. Each is made on first use, and answers for one that never was are dropped.

#include <QByteArray>
#include <QString>

class QWidget;
class VLK_Form_TMI_Fuel_Sensors;
class VLK_Form_TMI_Taho;

namespace vlk {

class EquipmentWindows
{
public:
    explicit EquipmentWindows(QWidget* view) : view_(view) {}

    // True with the one that was just made.
    bool openTachograph();
    VLK_Form_TMI_Taho* tachograph() const { return tachograph_; }
    // `vehicle` is its name. Tables with rows come to the front as they are.
    void openFuelSensors(const QString& vehicle);

    // The tracker is there, or is gone.
    void linkFound();
    void linkLost();
    // Asks where rows would be lost.
    void closeFuelSensors();
    void retranslate();

    void takeTachographAnswer(const QByteArray& answer);
    void takeTachographFetched(bool done);
    // The byte record of the live values, or null.
    void takeAnalog(const uchar* record);

private:
    QWidget* view_;
    VLK_Form_TMI_Taho* tachograph_ = nullptr;
    VLK_Form_TMI_Fuel_Sensors* fuelSensors_ = nullptr;
};

} // namespace vlk
