#pragma once

// The fuel tanks of the vehicle, each with one fuel sensor in it: AIN3, then D1 to D6. A sensor measures how
// high the fuel stands, so the shape of a tank makes its calibration curve.

#include <array>

namespace tracker {

enum class TankShape { Box, Cylinder, Saddle };

struct Tank
{
    const char* sensor;
    TankShape shape;
    double litres; // when it is full
    bool analogue; // its sensor gives a voltage, the others a code
};

inline constexpr std::array kTanks{
    Tank{"A3", TankShape::Box, 120, true},       Tank{"D1", TankShape::Cylinder, 200, false},
    Tank{"D2", TankShape::Saddle, 200, false},   Tank{"D3", TankShape::Box, 400, false},
    Tank{"D4", TankShape::Cylinder, 600, false}, Tank{"D5", TankShape::Saddle, 90, false},
    Tank{"D6", TankShape::Box, 60, false},
};

// How high the fuel stands: a share of the whole height, from 0 to 1.
double fuelHeight(const Tank& tank, double litres);

// What the sensor says when the fuel stands so high: millivolts or a code.
double sensorValue(const Tank& tank, double height);

} // namespace tracker
