#pragma once

// The numbers of one column by time, as a curve draws them. A record that has no such column takes no part;
// one whose value is none makes a gap, and so do more than five minutes without a record.

#include "telemetry/curves/extreme_pyramid.h"
#include "telemetry/view/shown_records.h"

#include <QPolygonF>

namespace vlk {

class CurveSeries
{
public:
    // Adds the records of `byTime`, which are those behind the ones it has. `holds` tells which of them have
    // the column at all.
    template <class Holds>
    void add(std::span<const int> byTime, const std::vector<quint32>& times, const NumberColumn& numbers,
             Holds holds)
    {
        for (const int record : byTime) {
            if (!holds(record))
                continue;
            times_.push_back(times[record]);
            numbers_.push_back(numbers[record]);
        }
        pyramid_.grow(numbers_);
    }

    bool hasValues() const { return !pyramid_.over(numbers_, 0, numbers_.size()).isEmpty(); }
    Extremes extremesIn(const TimeSpan& span) const;

    // What to draw of the span on that many columns of pixels, as pieces between gaps, in seconds and values.
    // Where many numbers share a column the least and the greatest of them stand for all. The pieces reach
    // beyond the span to the next number on both sides.
    std::vector<QPolygonF> pieces(const TimeSpan& span, int columns) const;

private:
    class Pieces;

    std::size_t firstAt(double time) const; // or later
    std::size_t firstBehind(double time) const;

    std::vector<quint32> times_; // rising
    std::vector<double> numbers_;
    ExtremePyramid pyramid_;
};

} // namespace vlk
