#include "tracker/vehicle.h"

#include "tracker/random.h"

namespace tracker {

double Vehicle::drift(int what, double low, double high, double seconds) const
{
    return low + (high - low) * wave(mix(m.seed, 1000 + what), static_cast<double>(m.time) / seconds);
}

double Vehicle::parkedSeconds() const
{
    return m.at.ignitionOffSince ? static_cast<double>(m.time - m.at.ignitionOffSince) : 0;
}

bool Vehicle::isOnLine(LineOwner device) const
{
    return m.settings && m.settings->serial.owner == device;
}

const BluetoothDevice* Vehicle::heard(BluetoothRules::Type type, int place) const
{
    const int device = m.settings ? m.settings->bluetooth.deviceFor(type, place) : -1;
    return device < 0 ? nullptr : &kBluetoothDevices[device];
}

} // namespace tracker
