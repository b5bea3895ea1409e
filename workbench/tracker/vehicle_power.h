#pragma once

// Supply voltages and the lines of the tracker.

#include "tracker/vehicle.h"

namespace tracker {

double supplyVoltage(const Vehicle& v); // mV
double backupSupply(const Vehicle& v);
double lineVoltage(const Vehicle& v, int index); // IN1 to IN3, mV
// Bit n is set while IN n + 1 is triggered.
int triggeredLines(const Vehicle& v, const WorkingSettings& settings);
double inputs(const Vehicle& v);
double outputs(const Vehicle& v, int group);
// By the supply when the tracker has a sensor on it, by the ignition line otherwise; without the delay
// after which the tracker believes it.
bool engineRuns(const Vehicle& v, const WorkingSettings& settings);
double frequency(const Vehicle& v, int index);

} // namespace tracker
