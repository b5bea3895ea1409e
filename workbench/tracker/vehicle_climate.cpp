#include "tracker/vehicle_climate.h"

#include <algorithm>

namespace tracker {

namespace {

constexpr double kNoI8 = -128;
constexpr double kNoI16 = -32768;
constexpr double kNoU8 = 255;

double steadyTemperature(const Vehicle& v, int sensor)
{
    switch (sensor) {
    case 0:
        return v.drift(40, 1, 6, 1200);
    case 1:
        return v.drift(41, 2, 7, 1500);
    case 2:
        return v.running() ? v.drift(42, 19, 24, 900) : v.m.outside + 2;
    case 3:
        return v.m.outside;
    default:
        return kNoI8;
    }
}

} // namespace

double temperature(const Vehicle& v, int sensor)
{
    constexpr double noise = 1.5;
    const bool filtered = !v.m.settings || sensor >= static_cast<int>(v.m.settings->zones.size()) ||
                          v.m.settings->zones[sensor].filtered;
    return steadyTemperature(v, sensor) + (filtered ? 0 : v.drift(410 + sensor, -noise, noise, 30));
}

double fineTemperature(const Vehicle& v, int place)
{
    constexpr double unitsToADegree = 20;
    const BluetoothDevice* device = v.heard(BluetoothRules::Temperature, place);
    return device && device->climate >= 0 ? v.drift(430 + device->climate, 1.5, 6, 900) * unitsToADegree
                                          : kNoI16;
}

double humidity(const Vehicle& v, int place)
{
    const BluetoothDevice* device = v.heard(BluetoothRules::Temperature, place);
    return device && device->tellsHumidity ? v.drift(440 + device->climate, 110, 170, 1200) : kNoU8;
}

double coolant(const Vehicle& v)
{
    return v.running() ? v.drift(48, 82, 92, 300) : std::max(v.m.outside, 85 - v.parkedSeconds() / 60);
}

double refrigeratorRuns(const Vehicle& v)
{
    return bit(0, v.m.trip > 0);
}

double refrigeratorTemperature(const Vehicle& v, int zone)
{
    return zone == 0 ? v.drift(110, 180, 520, 900) : zone == 1 ? v.drift(111, 200, 560, 1100) : 0;
}

} // namespace tracker
