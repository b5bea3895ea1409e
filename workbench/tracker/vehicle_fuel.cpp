#include "tracker/vehicle_fuel.h"

#include <algorithm>
#include <cmath>

namespace tracker {

double fuelLeft(const Vehicle& v, std::size_t tank)
{
    constexpr double half = kTankLitres / 2;
    switch (tank) {
    case 0:
        return kTanks[0].litres;
    case 1:
        return std::min(v.m.at.fuel, half);
    case 2:
        return std::max(0.0, v.m.at.fuel - half);
    case 3:
        return 150;
    default:
        return 0;
    }
}

double fuelSensor(const Vehicle& v, int sensor)
{
    const std::size_t index = 1 + static_cast<std::size_t>(sensor);
    const Tank& tank = kTanks[index];
    if (v.c.fuelHeights[index])
        return sensorValue(tank, *v.c.fuelHeights[index]);
    const double litres = fuelLeft(v, index);
    const double swing = v.driving() && litres > 0 ? v.drift(30 + sensor, -25, 25, 4) : 0;
    return std::clamp(sensorValue(tank, fuelHeight(tank, litres)) + swing, 0.0, sensorValue(tank, 1));
}

double recordedFuel(const Vehicle& v, int sensor)
{
    if (v.m.sensed.fuelCounts)
        return fuelSensor(v, sensor);
    Moment before = v.m;
    before.at.fuel = v.m.sensed.fuelRead;
    before.activity = Activity::Parked;
    return fuelSensor(Vehicle(before, v.c, v.links), sensor);
}

double slosh(const Vehicle& v, int sensor)
{
    constexpr double wave = 200;
    return v.driving() && v.m.sensed.fuelCounts ? v.drift(420 + sensor, -wave, wave, 3) : 0;
}

FuelSource fuelSource(const Vehicle& v, int row)
{
    constexpr int sensors = 6;
    if (!v.m.settings)
        return {};
    const SerialLineRules& line = v.m.settings->serial;
    if (v.isOnLine(LineOwner::Fuel) && line.sensorUsed[row]) {
        const int sensor = line.sensorAddress[row] - 1;
        if (sensor >= 0 && sensor < sensors)
            return {sensor, line.sensorFiltered[row]};
    }
    const BluetoothDevice* device = v.heard(BluetoothRules::Fuel, row);
    return {device ? device->tankSensor : -1, true};
}

double fuelPercent(const Vehicle& v)
{
    constexpr double percentFlag = 0x8000;
    return percentFlag + std::round(v.m.at.fuel / kTankLitres * 100);
}

double flow(const Vehicle& v)
{
    return v.running() ? (v.driving() ? 60 + v.m.speed * 2.4 : 22) * v.drift(33, 0.9, 1.1, 20) : 0;
}

} // namespace tracker
