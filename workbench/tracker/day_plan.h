#pragma once

// One day of the vehicle: what it does from midnight to midnight UTC, leg by leg, as the seed and the state
// in which the day begins have it. Nothing is stored: the same arguments give the same day. The seed also
// gives the vehicle its work: it delivers goods, hauls over long ways, collects refuse or stands on a site.

#include <QtGlobal>

#include <vector>

namespace tracker {

// No event tells of what is drained.
enum class Activity { Parked, Filling, Draining, Idling, Driving };

// What goes on from day to day.
struct Odometers
{
    double km = 0;
    double fuel = 300;       // litres in the tanks
    double fuelUsed = 18420; // litres since the vehicle was new
    double engineSeconds = 4.1e6;
    double loadSeconds = 2.9e6;  // of these, driving
    qint64 ignitionOffSince = 0; // Unix seconds, 0 while it is on
};

// A stretch of time with one activity.
struct Segment
{
    qint64 from = 0; // Unix seconds
    int seconds = 0;
    Activity activity = Activity::Parked;
    double metres = 0;    // driven
    double cruise = 0;    // m/s that a leg reaches between its ramps
    double fuelDelta = 0; // litres, burnt, drained or filled
    quint16 code = 0;     // what begins with it
    quint16 trip = 0;     // of the day, from 1
    Odometers at;         // at its beginning

    // After so many seconds of it: metres driven, km/h, and m/s2 (negative while braking).
    double metresAt(double elapsed) const;
    double speedAt(double elapsed) const;
    double accelerationAt(double elapsed) const;
    Odometers odometersAt(double elapsed) const;

private:
    // Seconds since the start and before the end of a leg whose ramps are exact, not rounded to a second.
    struct Ramps;
    Ramps ramps(double elapsed) const;
};

struct DayPlan
{
    std::vector<Segment> segments; // without a gap, never empty
    Odometers end;
};

inline constexpr int kDaySeconds = 86400;
// Litres that both tanks hold.
inline constexpr double kTankLitres = 400;

DayPlan planDay(quint64 seed, qint64 midnight, const Odometers& begin);

} // namespace tracker
