#include "tracker/day_plan.h"

#include "tracker/event_code.h"
#include "tracker/random.h"
#include "tracker/road.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

constexpr double kMetresPerKm = 1000;
constexpr double kKmhPerMs = 3.6;
constexpr double kAcceleration = 0.9; // m/s2 of a loaded lorry
constexpr double kFillBelow = 120;
constexpr int kLastDeparture = 16 * 3600; // UTC

// What a vehicle does all day.
struct Work
{
    int leastTrips;
    int mostTrips;
    double leastKm; // of a trip
    double mostKm;
    double leastLeg; // km
    double mostLeg;
    int mostIdling; // seconds before a trip
    double litresPerKm;
    double litresPerSecond; // idling
};

constexpr Work kWorks[] = {
    {8, 10, 14, 42, 0.5, 3.8, 240, 0.27, 0.0006},    // delivers goods
    {2, 3, 150, 290, 4, 40, 600, 0.31, 0.0007},      // hauls over long ways
    {16, 24, 2, 9, 0.2, 1.5, 240, 0.42, 0.0009},     // collects refuse
    {3, 5, 0.6, 5, 0.2, 1.5, 2 * 3600, 0.5, 0.0022}, // works standing
};
constexpr quint64 kWorkSeed = 9;

// The chances of a pour and of a drain at a stop, and what is poured or drained then. Litres, seconds.
constexpr double kTopUpChance = 0.04;
constexpr double kDrainChance = 0.03;
constexpr double kLeastKeptByThieves = 60;
constexpr int kLongestPour = 1200;
constexpr quint64 kPourSeed = 7;

class Planner
{
public:
    Planner(quint64 seed, qint64 midnight, const Odometers& begin)
        : work_(kWorks[mix(seed, kWorkSeed) % std::size(kWorks)]),
          random_(mix(seed, static_cast<quint64>(midnight))),
          pours_(mix(mix(seed, kPourSeed), static_cast<quint64>(midnight))), midnight_(midnight), now_(begin)
    {
    }

    DayPlan plan()
    {
        // 1970-01-01 was a Thursday.
        const auto weekday = (midnight_ / kDaySeconds + 3) % 7;
        const bool weekend = weekday >= 5;
        const int trips =
            weekend ? random_.integer(2, 4) : random_.integer(work_.leastTrips, work_.mostTrips);
        park((weekend ? 6 : 4) * 3600 + random_.integer(0, 1800), EventCode::ParkedTimer);
        while (trip_ < trips && elapsed_ < kLastDeparture)
            drive();
        park(kDaySeconds - elapsed_, EventCode::ParkedTimer);
        return {std::move(segments_), now_};
    }

private:
    void drive()
    {
        ++trip_;
        wait(Activity::Idling, random_.integer(60, work_.mostIdling), EventCode::IgnitionOn);
        const double target = now_.km + random_.between(work_.leastKm, work_.mostKm);
        while (now_.km < target) {
            leg(std::min(random_.between(work_.leastLeg, work_.mostLeg), target - now_.km + 0.1));
            wait(Activity::Idling, random_.integer(6, 55), EventCode::MovementStop);
        }
        park(random_.integer(700, 1900), EventCode::IgnitionOff);
        if (now_.fuel < kFillBelow) {
            wait(Activity::Filling, random_.integer(260, 420), EventCode::FillingStart);
            wait(Activity::Parked, random_.integer(60, 180), EventCode::FillingEnd);
        }
    }

    // Now and then somebody tops up or drains meanwhile.
    void park(int seconds, EventCode code)
    {
        const double chance = pours_.between(0, 1);
        const int length = pours_.integer(120, kLongestPour);
        const int before = pours_.integer(30, 24 * 3600) % std::max(1, seconds - length);
        const double litres = pours_.between(0, 1);
        const double room = kTankLitres * 0.97 - now_.fuel;
        const bool drains = chance < kDrainChance && now_.fuel > kLeastKeptByThieves;
        const bool fills = !drains && chance < kDrainChance + kTopUpChance && room > 0;
        if (seconds <= length || (!drains && !fills))
            return wait(Activity::Parked, seconds, code);
        wait(Activity::Parked, std::max(before, 1), code);
        // A little is drained oftener than much.
        pour(length, fills ? std::min(room, 8 + 150 * litres)
                           : -std::min(now_.fuel - kLeastKeptByThieves, 3 + 87 * litres * litres));
        wait(Activity::Parked, seconds - length - std::max(before, 1),
             fills ? EventCode::FillingEnd : EventCode::ParkedTimer);
    }

    void leg(double km)
    {
        Segment segment;
        segment.activity = Activity::Driving;
        segment.metres = km * kMetresPerKm;
        const double wanted = speedLimitAt(now_.km + km / 2) * random_.between(0.78, 1.07) / kKmhPerMs;
        // A short leg ends before the speed is reached.
        segment.cruise = std::min(wanted, std::sqrt(segment.metres * kAcceleration));
        segment.seconds =
            static_cast<int>(std::ceil(segment.metres / segment.cruise + segment.cruise / kAcceleration));
        segment.fuelDelta = -km * work_.litresPerKm * random_.between(0.85, 1.2);
        segment.code = static_cast<quint16>(EventCode::MovementStart);
        add(segment);
    }

    void wait(Activity activity, int seconds, EventCode code)
    {
        if (seconds <= 0)
            return;
        Segment segment;
        segment.activity = activity;
        segment.seconds = seconds;
        segment.code = static_cast<quint16>(code);
        if (activity == Activity::Idling)
            segment.fuelDelta = -work_.litresPerSecond * seconds;
        if (activity == Activity::Filling)
            segment.fuelDelta = kTankLitres * random_.between(0.9, 0.97) - now_.fuel;
        add(segment);
    }

    // No event tells of what is drained.
    void pour(int seconds, double litres)
    {
        Segment segment;
        segment.activity = litres > 0 ? Activity::Filling : Activity::Draining;
        segment.seconds = seconds;
        segment.fuelDelta = litres;
        segment.code = static_cast<quint16>(litres > 0 ? EventCode::FillingStart : EventCode::ParkedTimer);
        add(segment);
    }

    void add(Segment& segment)
    {
        segment.from = midnight_ + elapsed_;
        segment.trip = static_cast<quint16>(trip_);
        const bool ignition = segment.activity == Activity::Driving || segment.activity == Activity::Idling;
        if (ignition)
            now_.ignitionOffSince = 0;
        else if (now_.ignitionOffSince == 0)
            now_.ignitionOffSince = segment.from;
        segment.at = now_;
        const bool driving = segment.activity == Activity::Driving;
        now_.km += segment.metres / kMetresPerKm;
        now_.fuel += segment.fuelDelta;
        now_.fuelUsed += ignition ? -segment.fuelDelta : 0;
        now_.engineSeconds += ignition ? segment.seconds : 0;
        now_.loadSeconds += driving ? segment.seconds : 0;
        elapsed_ += segment.seconds;
        segments_.push_back(segment);
    }

    const Work& work_;
    Random random_;
    Random pours_;
    qint64 midnight_;
    Odometers now_;
    int elapsed_ = 0;
    int trip_ = 0;
    std::vector<Segment> segments_;
};

} // namespace

struct Segment::Ramps
{
    double since;
    double before;
    double length; // of one ramp
};

Segment::Ramps Segment::ramps(double elapsed) const
{
    const double length = cruise / kAcceleration;
    const double total = metres / cruise + length;
    const double since = std::clamp(elapsed / seconds, 0.0, 1.0) * total;
    return {since, total - since, length};
}

double Segment::metresAt(double elapsed) const
{
    if (activity != Activity::Driving)
        return 0;
    const Ramps ramp = ramps(elapsed);
    if (ramp.since < ramp.length)
        return kAcceleration * ramp.since * ramp.since / 2;
    if (ramp.before < ramp.length)
        return metres - kAcceleration * ramp.before * ramp.before / 2;
    return cruise * (ramp.since - ramp.length / 2);
}

double Segment::speedAt(double elapsed) const
{
    if (activity != Activity::Driving)
        return 0;
    const Ramps ramp = ramps(elapsed);
    return std::min({cruise, kAcceleration * ramp.since, kAcceleration * ramp.before}) * kKmhPerMs;
}

double Segment::accelerationAt(double elapsed) const
{
    if (activity != Activity::Driving)
        return 0;
    const Ramps ramp = ramps(elapsed);
    if (ramp.since < ramp.length)
        return kAcceleration;
    return ramp.before < ramp.length ? -kAcceleration : 0;
}

Odometers Segment::odometersAt(double elapsed) const
{
    Odometers result = at;
    result.km += metresAt(elapsed) / 1000;
    const double fuel = fuelDelta * elapsed / seconds;
    result.fuel += fuel;
    if (activity == Activity::Idling || activity == Activity::Driving) {
        result.fuelUsed -= fuel;
        result.engineSeconds += elapsed;
    }
    if (activity == Activity::Driving)
        result.loadSeconds += elapsed;
    return result;
}

DayPlan planDay(quint64 seed, qint64 midnight, const Odometers& begin)
{
    return Planner(seed, midnight, begin).plan();
}

} // namespace tracker
