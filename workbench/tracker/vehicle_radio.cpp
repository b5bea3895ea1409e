#include "tracker/vehicle_radio.h"

#include "tracker/random.h"

#include <cmath>

namespace tracker {

namespace {

constexpr double kHalfHour = 1800;

} // namespace

double state(const Vehicle& v)
{
    return bit(3, v.c.guard) + bit(6, v.parkedSeconds() > kHalfHour);
}

double module1(const Vehicle& v)
{
    return bit(0, true) + bit(1, v.m.time >= v.links.usbSince) + bit(2, true) + bit(5, true) + bit(6, true) +
           bit(7, v.m.sensed.engine);
}

double module2(const Vehicle& v)
{
    return bit(3, v.m.speed <= 0) + bit(5, true);
}

double connection(const Vehicle& v)
{
    constexpr int gprs = 2;
    constexpr int lte = 4;
    constexpr int firstServer = 3;
    constexpr int talk = 60; // seconds
    const bool connected = v.links.connectsEvery <= 0 || v.m.time % v.links.connectsEvery < talk;
    double servers = 0;
    for (std::size_t i = 0; i < v.links.servers.size(); ++i)
        servers += bit(firstServer + static_cast<int>(i), v.links.servers[i] && connected);
    return (v.drift(1, 0, 1, kHalfHour) < 0.25 ? gprs : lte) + servers + bit(6, v.links.service) +
           bit(7, v.links.bluetooth);
}

double gsmLevel(const Vehicle& v)
{
    return v.drift(2, 11, 31, 240);
}

double navigationState(const Vehicle& v)
{
    return bit(0, true) + bit(1, v.m.fix) + v.m.satellites.all() * 4;
}

double satellites(const Vehicle& v, int system)
{
    constexpr int glonass = 0;
    constexpr int gps = 1;
    constexpr int beidou = 4;
    return system == glonass  ? v.m.satellites.glonass
           : system == gps    ? v.m.satellites.gps
           : system == beidou ? v.m.satellites.beidou
                              : 0;
}

double dilution(const Vehicle& v, int kind)
{
    constexpr double ofPosition = 1.7; // times the horizontal one
    return 10 * v.m.satellites.hdop() * (kind == 0 ? 1 : ofPosition);
}

// Cells are some two kilometres wide, and three stations are in sight.
double cell(const Vehicle& v, int station)
{
    const auto row = static_cast<std::uint64_t>(v.m.road.latitude * 50);
    const auto column = static_cast<std::uint64_t>(v.m.road.longitude * 28);
    return static_cast<double>(mix(row * 1000 + column, static_cast<std::uint64_t>(station)) % 200000000);
}

double areaCode(const Vehicle& v)
{
    return 7600 + std::floor((v.m.road.latitude - 57.5) * 20);
}

double stationLevel(const Vehicle& v, int station)
{
    return v.drift(10 + station, -90, -58, 90) - station * 9;
}

} // namespace tracker
