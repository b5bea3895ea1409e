#pragma once

// Engine, axles and tyres, accelerations, the tachograph, the passengers.

#include "tracker/vehicle.h"

namespace tracker {

double engineTurns(const Vehicle& v);
double engineLoad(const Vehicle& v); // percent
double gasPedal(const Vehicle& v);   // percent
double brakePedal(const Vehicle& v);
double axleLoad(const Vehicle& v, int axle);      // kg
double tyrePressure(const Vehicle& v, int wheel); // 0.1 bar
double tyreTemperature(const Vehicle& v, int wheel);
double lateral(const Vehicle& v);  // g
double shock(const Vehicle& v);    // percent of the sensors SH1 and SH2
double movement(const Vehicle& v); // percent of SH3
double tilt(const Vehicle& v);     // degrees, SH4
double shockState(const Vehicle& v);
double speedThresholds(const Vehicle& v); // a bit for each exceeded
double thresholds(double g);
double tachographState(const Vehicle& v);
// How many have entered on this trip, by the counters with addresses of their own; 255 where there is none.
double passengers(const Vehicle& v, int counter);

} // namespace tracker
