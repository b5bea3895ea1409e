#include "tracker/tank.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

// A cylinder on its side, filled to the height: the part of its circle below it.
double cylinderFilling(double height)
{
    const double angle = 2 * std::acos(1 - 2 * height);
    return (angle - std::sin(angle)) / (2 * std::acos(-1.0));
}

double cylinderHeight(double filling)
{
    double low = 0;
    double high = 1;
    constexpr int halvings = 30;
    for (int i = 0; i < halvings; ++i) {
        const double middle = (low + high) / 2;
        (cylinderFilling(middle) < filling ? low : high) = middle;
    }
    return (low + high) / 2;
}

// Two legs astride the drive shaft, narrower than the tank above them.
double saddleHeight(double filling)
{
    constexpr double legs = 0.35; // of the height
    constexpr double width = 0.6; // of the tank's
    constexpr double inLegs = legs * width;
    constexpr double whole = inLegs + 1 - legs;
    const double volume = filling * whole;
    return volume < inLegs ? volume / width : legs + volume - inLegs;
}

} // namespace

double fuelHeight(const Tank& tank, double litres)
{
    const double filling = std::clamp(litres / tank.litres, 0.0, 1.0);
    switch (tank.shape) {
    case TankShape::Cylinder:
        return cylinderHeight(filling);
    case TankShape::Saddle:
        return saddleHeight(filling);
    case TankShape::Box:
        break;
    }
    return filling;
}

double sensorValue(const Tank& tank, double height)
{
    constexpr double emptyMillivolts = 500;
    constexpr double fullMillivolts = 5000;
    constexpr double fullCode = 4095;
    return tank.analogue ? emptyMillivolts + (fullMillivolts - emptyMillivolts) * height : fullCode * height;
}

} // namespace tracker
