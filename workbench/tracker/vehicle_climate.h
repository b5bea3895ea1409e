#pragma once

// Temperatures of the cooled body, the cabin, the engine and the outside.

#include "tracker/vehicle.h"

namespace tracker {

double temperature(const Vehicle& v, int sensor); // degrees, -128 without a sensor
// Measured by the devices that are heard by Bluetooth, each in its place.
double fineTemperature(const Vehicle& v, int place); // 0.05 degree
double humidity(const Vehicle& v, int place);        // 0.5 percent
double coolant(const Vehicle& v);                    // degrees
double refrigeratorRuns(const Vehicle& v);
double refrigeratorTemperature(const Vehicle& v, int zone); // 0.01 degree

} // namespace tracker
