#pragma once

// What is in the tanks, and what the sensors in them say.

#include "tracker/vehicle.h"

namespace tracker {

// A sensor in a tank, 0 to 5, and whether its readings are averaged; -1 where there is none.
struct FuelSource
{
    int sensor = -1;
    bool filtered = false;
};

// What is in a tank into which nobody has poured, in litres.
double fuelLeft(const Vehicle& v, std::size_t tank);
double fuelSensor(const Vehicle& v, int sensor); // D1 to D6, 0 to 4095
// What the sensor says, or said when it counted last.
double recordedFuel(const Vehicle& v, int sensor);
// What a filter takes away from it.
double slosh(const Vehicle& v, int sensor);
// The sensor that stands in the record as this fuel level. On the serial line the one that answers to the
// address of the row, where the sensors have the addresses 1 to 6; else one that is heard by Bluetooth.
FuelSource fuelSource(const Vehicle& v, int row);
double fuelPercent(const Vehicle& v); // with the flag that says percent
double flow(const Vehicle& v);        // 0.1 litre an hour

} // namespace tracker
