#pragma once

// The numbers of one column by time, as a curve draws them. A record that has no such column takes no part;
// one whose value is none makes a gap, and so do records that are missing between two.

#include "telemetry/curves/extreme_pyramid.h"
#include "telemetry/files/record_gaps.h"
#include "telemetry/shown/shown_records.h"

#include <QPolygonF>

namespace vlk {

class CurveSeries
{
public:
    // Adds the records of `byTime`, which are those behind the ones it has. `holds` tells which of them have
    // the column at all.
    template <class Holds>
    void add(std::span<const int> byTime, const RecordGaps& gaps, const NumberColumn& numbers, Holds holds)
    {
        for (const int record : byTime) {
            if (!holds(record))
                continue;
            times_.push_back(gaps.times()[record]);
            numbers_.push_back(numbers[record]);
            isBehindGap_.push_back(last_ < 0 || gaps.areApart(last_, record));
            last_ = record;
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
    std::vector<bool> isBehindGap_; // the first one too
    int last_ = -1;                 // record
    ExtremePyramid pyramid_;
};

} // namespace vlk
