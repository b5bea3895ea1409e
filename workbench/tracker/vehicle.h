#pragma once

// The vehicle at a moment. What its sensors and buses say then, in the units of the telemetry fields, stands
// in vehicle_*.h, by what it is about; records and live answers read the same values. Sensors that the
// vehicle lacks give the value that says so.

#include "tracker/bluetooth_devices.h"
#include "tracker/moment.h"

namespace tracker {

// What bit n adds to a value of bits.
constexpr double bit(int n, bool on)
{
    return on ? 1 << n : 0;
}

class Vehicle
{
public:
    Vehicle(const Moment& moment, const Controls& controls, const Links& links = {})
        : m(moment), c(controls), links(links)
    {
    }

    const Moment m;
    const Controls c;
    const Links links;

    bool driving() const { return m.activity == Activity::Driving; }
    bool running() const { return m.ignition(); }

    double mileage() const { return m.at.km + c.mileageShift; } // km
    // Seconds since the ignition went off; 0 while it is on.
    double parkedSeconds() const;
    // Whether the tracker is set to this device on its serial line.
    bool isOnLine(LineOwner device) const;
    // The Bluetooth device that stands in the record at this place; null for none.
    const BluetoothDevice* heard(BluetoothRules::Type type, int place) const;
    // Between two bounds, changing smoothly within so many seconds; `what` tells curves apart.
    double drift(int what, double low, double high, double seconds) const;
};

} // namespace tracker
