#pragma once

// The vehicle's life from one midnight on, without end: what holds at any second, and which records were
// made until then. Records are numbered from 0 and made when they are asked for; what is remembered is how
// each day begins.

#include "tracker/moment.h"

#include <array>

namespace tracker {

class Drive
{
public:
    // Starts at a midnight UTC.
    Drive(quint64 seed, qint64 midnight);

    // Earlier times count as the beginning.
    Moment at(qint64 time);
    Moment record(quint32 number);
    // Of the last record at or before the time, of the first at or after it.
    quint32 lastBefore(qint64 time);
    quint32 firstAfter(qint64 time);

private:
    struct Day
    {
        int index = -1;
        DayPlan plan;
    };
    struct Place // of a record within its segment
    {
        const Segment* segment;
        quint32 index;
        qint64 time() const { return segment->from + qint64(index) * segment->interval(); }
    };

    const DayPlan& day(int index);
    const Segment& segmentAt(qint64 time);
    Place placeOf(quint32 number);
    Moment moment(const Segment& segment, qint64 time) const;
    // The way and the time since that record.
    void measureFrom(quint32 number, Moment& moment);

    quint64 seed_;
    qint64 midnight_;
    std::vector<Odometers> begins_; // of every day looked at, and of the one behind
    std::array<Day, 2> days_;       // the last two in use
};

} // namespace tracker
