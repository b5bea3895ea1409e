#pragma once

// What a vehicle did in a span of time, in figures: way, times, fuel, and what is missing in its records.

#include "telemetry/files/vehicle_times.h"
#include "telemetry/fuel/fuel_events.h"
#include "telemetry/fuel/level_medians.h"

#include <functional>

namespace vlk {

// What no record of the span tells is NaN, or a count beside NaN litres.
struct JourneySummary
{
    double from = 0; // seconds since 1970; the first and the last record
    double until = 0;
    int records = 0;
    double metres = 0; // NaN also where geodesics cannot be had
    // Seconds. What lies in more than five minutes without a record counts nowhere, but for a vehicle that
    // stands before and after them at one place. The way over them is the straight one, and none where
    // records are missing; over a shorter time it is near enough to the truth though some are.
    double moving = 0;
    double standing = 0;
    double engine = 0; // ignition on
    double withoutFix = 0;
    double fuelBefore; // litres
    double fuelAfter;
    int refuellings = 0;
    int drains = 0;
    double refuelled = 0; // litres
    double drained = 0;
    double greatestSpeed; // km/h
    double missing = 0;   // records, by their numbers

    double fuelUsed() const { return fuelBefore + refuelled - drained - fuelAfter; }
    // Litres; NaN for less than a kilometre.
    double per100Km() const;
};

class Journey
{
public:
    // Looks at all records once. `litres` may be empty: no fuel.
    Journey(RecordColumns& columns, const NumberColumn& litres, std::vector<FuelEvent> events);
    // Looks at them in steps, to be called in their order; it is to be used behind the last one, and what is
    // given here is to be there until then.
    using Steps = std::vector<std::function<void()>>;
    Journey() = default;
    Steps stepsToMake(RecordColumns& columns, const NumberColumn& litres, std::vector<FuelEvent> events);

    // Both ends in it. No records where there are none. A refuelling or drain counts whole where it begins.
    JourneySummary summary(double from, double until) const;
    // A summary of each day with records, from midnight to midnight; seconds east of UTC.
    std::vector<JourneySummary> days(qint32 utcOffset) const;

private:
    // A record with what came up to the next one, in 16 bytes, since there may be a million.
    struct Stretch
    {
        quint32 time;
        float speed;
        float metres;
        quint32 missing : 20; // records
        quint32 moves : 1;
        quint32 stands : 1;
        quint32 engine : 1;
        quint32 isEngineKnown : 1;
        quint32 isPoint : 1; // of the track
        quint32 isWithoutFix : 1;
        quint32 isCounted : 1; // the time to the next record
        quint32 isNumbered : 1;
    };
    static constexpr quint32 kMostMissing = (1U << 20) - 1;

    struct Making;

    void takeStretches(Making& making, int first, int behind);
    void takePoints(Making& making, int first, int behind);
    void measureWay(Making& making, int first, int behind);
    void noStandingInGaps(int first, int behind);
    void takeFuel(JourneySummary& sum, double from, double until) const;

    std::vector<Stretch> stretches_; // by time
    std::vector<LevelMedian> medians_;
    std::vector<FuelEvent> events_;
};

} // namespace vlk
