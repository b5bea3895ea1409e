#pragma once

// The vehicle's life from one midnight on, without end: what holds at any second, and which records were
// made until then by the tracker's settings. Records are numbered from 0 and made when they are asked for;
// what is remembered is how each day begins.

#include "tracker/track_points.h"

#include <list>
#include <vector>

namespace tracker {

class Drive
{
public:
    // Starts at a midnight UTC.
    Drive(quint64 seed, qint64 midnight, const SettingsHistory& settings);

    // The settings have changed at that time.
    void settingsChanged(qint64 time);

    // Earlier times count as the beginning.
    Moment at(qint64 time);
    Moment record(quint32 number);
    // The number of the last record at or before the time, of the first at or after it.
    quint32 lastBefore(qint64 time);
    quint32 firstAfter(qint64 time);

private:
    struct Begin
    {
        Odometers at;
        Trace trace;
    };
    struct Day
    {
        int index = -1;
        DayPlan plan;
        TrackedDay tracked;
    };

    Day make(int index) const;
    const Day& day(int index);
    const Day& dayAt(qint64 time);
    // The day in which that record was made.
    const Day& dayOf(quint32 number);
    const TrackPoint& pointOf(quint32 number, qint64& time);
    Moment moment(const Day& day, qint64 time) const;
    // The way and the time since that record.
    void measureFrom(quint32 number, Moment& moment);

    quint64 seed_;
    qint64 midnight_;
    const SettingsHistory& settings_;
    std::vector<Begin> begins_; // of every day looked at, and of the one behind
    std::list<Day> days_;       // the last few in use, the latest in front
};

} // namespace tracker
