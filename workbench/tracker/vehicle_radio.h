#pragma once

// What the tracker says of itself and of the air: its modules, the network, the servers, the satellites, the
// base stations.

#include "tracker/vehicle.h"

namespace tracker {

double state(const Vehicle& v);
double module1(const Vehicle& v);
double module2(const Vehicle& v);
double connection(const Vehicle& v);
double gsmLevel(const Vehicle& v);
double navigationState(const Vehicle& v);
double satellites(const Vehicle& v, int system); // in the order of the satellite fields
double dilution(const Vehicle& v, int kind);     // 0.1, horizontal and of position
double cell(const Vehicle& v, int station);
double areaCode(const Vehicle& v);
double stationLevel(const Vehicle& v, int station); // dBm

} // namespace tracker
