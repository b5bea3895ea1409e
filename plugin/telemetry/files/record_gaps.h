#pragma once

// Where records are missing, by their times or by their numbers: what the vehicle did between two such
// records is not known. One rule for what is drawn: curves, bands, stops and the track.

#include "telemetry/files/record_columns.h"

#include <cstdlib>

namespace vlk {

// Records further apart in time do not belong to one run of records.
inline constexpr qint64 kGapSeconds = qint64{5} * 60;

inline bool areFarApart(quint32 time, quint32 other)
{
    return std::abs(qint64{other} - time) > kGapSeconds;
}

// For as long as the store does not grow.
class RecordGaps
{
public:
    explicit RecordGaps(RecordColumns& columns) : RecordGaps(columns.times(), columns.missingUpTo()) {}
    // By record: its time, and how many are missing up to it.
    RecordGaps(const std::vector<quint32>& times, const std::vector<quint32>& missing)
        : times_(times), missing_(missing)
    {
    }

    const std::vector<quint32>& times() const { return times_; }
    bool areApart(int record, int other) const
    {
        return missing_[record] != missing_[other] || areFarApart(times_[record], times_[other]);
    }
    // Records between the two that are missing by their numbers.
    quint32 missingBetween(int record, int other) const
    {
        const auto [fewer, more] = std::minmax(missing_[record], missing_[other]);
        return more - fewer;
    }

private:
    const std::vector<quint32>& times_;
    const std::vector<quint32>& missing_;
};

} // namespace vlk
