#include "tracker/vehicle_motion.h"

#include "tracker/random.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

constexpr double kNoU16 = 0xFFFF;
constexpr int kWheels = 10;

// A hole in the road now and then, over ten seconds.
double hit(const Vehicle& v)
{
    const std::uint64_t chance = mix(v.m.seed + 107, static_cast<std::uint64_t>(v.m.time) / 10);
    return chance % 300 == 0 ? 35 + 64 * fraction(mix(chance)) : 0;
}

} // namespace

double engineTurns(const Vehicle& v)
{
    if (!v.running())
        return 0;
    return v.driving() ? 900 + v.m.speed * 11 + v.drift(50, 0, 220, 5) : v.drift(51, 640, 665, 4);
}

double engineLoad(const Vehicle& v)
{
    return !v.running() ? 0 : v.driving() ? v.drift(52, 25, 75, 8) + v.m.acceleration * 15 : 12;
}

double gasPedal(const Vehicle& v)
{
    return v.driving() ? std::max(0.0, v.m.acceleration * 60 + v.drift(53, 10, 25, 6)) : 0;
}

double brakePedal(const Vehicle& v)
{
    return std::max(0.0, -v.m.acceleration * 45);
}

// The load goes down trip by trip.
double axleLoad(const Vehicle& v, int axle)
{
    constexpr double empty[] = {4900, 6100};
    constexpr double perTrip[] = {60, 430};
    return axle < 2 ? empty[axle] + std::max(0, 10 - v.m.trip) * perTrip[axle] : kNoU16;
}

double tyrePressure(const Vehicle& v, int wheel)
{
    return wheel < kWheels ? v.drift(60 + wheel, 82, 86, 3600) : 0;
}

double tyreTemperature(const Vehicle& v, int wheel)
{
    constexpr double noTemperature = -127;
    return wheel < kWheels ? v.m.outside + (v.driving() ? 22 : 8) + v.drift(80 + wheel, 0, 3, 900)
                           : noTemperature;
}

double lateral(const Vehicle& v)
{
    return v.driving() ? v.drift(100, -0.16, 0.16, 6) * v.m.speed / 60 : 0;
}

double shock(const Vehicle& v)
{
    return v.driving() ? std::max(hit(v), v.drift(101, 2, 28, 3)) : v.drift(102, 0.1, 0.9, 3);
}

double movement(const Vehicle& v)
{
    return v.driving() ? v.drift(103, 2.5, 8, 5) : v.drift(104, 0, 0.6, 5);
}

double tilt(const Vehicle& v)
{
    return v.driving() ? v.drift(105, 0, 4, 15) : v.drift(106, 0, 0.4, 600);
}

double shockState(const Vehicle& v)
{
    return v.m.sensed.shocks;
}

double speedThresholds(const Vehicle& v)
{
    double bits = 0;
    for (int i = 0; i < 6; ++i)
        bits += bit(i, v.m.speed > 50 + i * 10);
    return bits;
}

double thresholds(double g)
{
    double bits = 0;
    for (int i = 0; i < 4; ++i)
        bits += bit(i, g > 0.05 * (i + 1));
    return bits;
}

double tachographState(const Vehicle& v)
{
    constexpr int rest = 0;
    constexpr int work = 2;
    constexpr int drive = 3;
    constexpr int cardOfDriver1 = 4;
    return (v.driving() ? drive : v.running() ? work : rest) + cardOfDriver1;
}

double passengers(const Vehicle& v, int counter)
{
    constexpr double none = 255;
    constexpr double seats = 50;
    if (!v.isOnLine(LineOwner::Counters) ||
        counter >= static_cast<int>(v.m.settings->serial.counterAddress.size()) ||
        v.m.settings->serial.counterAddress[counter] == 0)
        return none;
    return std::floor(v.drift(400 + counter, 0, seats, 1800));
}

} // namespace tracker
