#pragma once

// Times as curves and track show them: round moments for the axis, and texts of moments and durations. Times
// are seconds since 1970 in UTC, shown that many seconds east of it.

#include "telemetry/shown/record_cell.h"
#include "telemetry/shown/shown_records.h"

namespace vlk {

struct TimeTicks
{
    double step = 0;
    std::vector<double> major;
    std::vector<double> minor;
};

// At most so many major ones.
TimeTicks timeTicks(const TimeSpan& span, int most, qint32 utcOffset);
// "20.11. 08:30", with seconds or only the date where the step asks for it.
QString tickText(double time, double step, qint32 utcOffset);

// "08:29:44" on the day of the other moment, the date before it on another day.
QString momentText(double time, double other, qint32 utcOffset);
// "45 s", "28 min", "3 h 05 min", "2 d 4 h"; with its sign where it is negative.
QString durationText(double seconds);

} // namespace vlk
