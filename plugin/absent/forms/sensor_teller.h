#pragma once

// Sends the signals of a wireless sensor's forms about what the sensor offers and takes
// (absent/params/sensor_offers.h): the difference between what it told last and what is now.

#include "absent/params/sensor_offers.h"

class VLK_Form_Config_Ble_DevType_Uni;

namespace vlk {

class BleSensorForm;

class SensorTeller
{
public:
    // `forms`: one a type, which outlive this.
    SensorTeller(const Values& bluetooth, int sensor, const std::vector<BleSensorForm*>& forms);

    // After an edit, a load or a reset.
    void tell() { tell(source_.offers()); }
    // Before the names of what is offered change.
    void withdrawAll() { tell({}); }

private:
    using Universal = SensorOffers::Universal;

    void tell(const SensorOffers& now);
    void tellSupplied(const SensorOffers& offers, bool on) const;
    void tellRow(const Universal& before, const Universal& now) const;
    void offer(const Universal& row) const;
    void take(const Universal& row) const;
    void withdraw(const Universal& row) const;
    void give(const Universal& row) const;
    BleSensorForm* formOf(const BluetoothSensorType& type) const;

    const SensorOfferSource source_;
    const std::vector<BleSensorForm*> forms_;
    VLK_Form_Config_Ble_DevType_Uni* universal_ = nullptr;
    SensorOffers told_;
};

} // namespace vlk
