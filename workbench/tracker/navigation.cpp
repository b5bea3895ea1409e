#include "tracker/navigation.h"

#include "tracker/random.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

enum NavigationSeed : quint64 { SatelliteSeed = 1, NorthSeed = 5, EastSeed = 6 };

constexpr int kLeastForFix = 4;
constexpr double kMetresPerDegree = 111195;

bool isHidden(double km)
{
    return lastOpenKm(km) < km;
}

// Faster than it can have become since the second before, or farther away than it can have come in two.
bool jumped(const Segment& segment, int second, const NavigationRules& rules)
{
    const double gain = segment.speedAt(second) - segment.speedAt(std::max(0, second - 1));
    const double shift = segment.metresAt(second) - segment.metresAt(std::max(0, second - 2));
    return gain > rules.mostGain || shift > rules.mostShift;
}

} // namespace

Satellites satellitesAt(quint64 seed, qint64 time, double km, const NavigationRules& rules)
{
    if (isHidden(km))
        return {.gps = 2};
    // The sky above the usual angle, and what a higher one leaves of it.
    constexpr int fewest = 6;
    constexpr int change = 9;
    constexpr double usualAngle = 5;
    constexpr double zenith = 90;
    const double sky = wave(mix(seed, SatelliteSeed), static_cast<double>(time) / 150);
    const int seen = fewest + static_cast<int>(sky * change);
    const double part = std::clamp((zenith - rules.elevation) / (zenith - usualAngle), 0.0, 1.0);
    const int all = static_cast<int>(seen * part);
    // One system has two thirds of what two have together. Without any, both work as from the factory.
    const int alone = all * 2 / 3;
    const int second = all * 2 / 5;
    const bool gps = rules.systems[0];
    const bool glonass = rules.systems[1];
    if (gps == glonass)
        return {.gps = all - second, .glonass = second};
    if (glonass)
        return {.glonass = alone};
    const bool beidou = rules.systems[4];
    return beidou ? Satellites{.gps = all - second, .beidou = second} : Satellites{.gps = alone};
}

void navigate(Fix& fix, quint64 seed, const Segment& segment, int second, const NavigationRules& rules)
{
    const qint64 time = segment.from + second;
    const double km = segment.at.km + segment.metresAt(second) / 1000;
    const Satellites satellites = satellitesAt(seed, time, km, rules);
    fix.valid = !isHidden(km) && satellites.all() >= kLeastForFix;
    if (fix.valid && rules.filtered) {
        fix.valid = satellites.all() >= rules.leastSatellites && satellites.hdop() * 100 <= rules.mostHdop &&
                    segment.speedAt(second) <= rules.mostSpeed && time > fix.rejectedUntil;
        if (time > fix.rejectedUntil && jumped(segment, second, rules))
            fix.rejectedUntil = time + rules.rejectedAfterJump;
    }
    if (fix.valid) {
        fix.time = time;
        fix.km = km;
    }
}

double wanderingOf(const NavigationRules& rules, bool ignition, bool moved)
{
    constexpr double free = 6;
    constexpr double averaged = 0.5;
    const bool stands = (rules.standsWithoutIgnition && !ignition) || (rules.standsWithoutMovement && !moved);
    if (!rules.filtered || !stands)
        return free;
    switch (rules.atStops) {
    case AtStops::Fix:
        return 0;
    case AtStops::Average:
        return averaged;
    case AtStops::Nothing:
        break;
    }
    return free;
}

RoadPoint wandered(RoadPoint point, quint64 seed, qint64 time, double metres)
{
    constexpr double period = 60; // seconds
    const auto away = [&](NavigationSeed direction) {
        const double swing = wave(mix(seed, direction), static_cast<double>(time) / period) * 2 - 1;
        return swing * metres / std::sqrt(2) / kMetresPerDegree;
    };
    constexpr double radian = 3.14159265358979323846 / 180;
    point.longitude += away(EastSeed) / std::cos(point.latitude * radian);
    point.latitude += away(NorthSeed);
    return point;
}

} // namespace tracker
