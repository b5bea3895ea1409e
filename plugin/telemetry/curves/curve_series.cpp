#include "telemetry/curves/curve_series.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr int kFewPerColumn = 4;

} // namespace

// Adds points to the last piece, or begins another.
class CurveSeries::Pieces
{
public:
    explicit Pieces(const CurveSeries& series) : series_(series) {}

    void addNumber(std::size_t i)
    {
        breakAtGapBefore(i);
        addPoint(i, series_.numbers_[i]);
    }

    // From `first` to before `last`, which share a column.
    void addColumn(std::size_t first, std::size_t last)
    {
        const Extremes extremes = series_.pyramid_.over(series_.numbers_, first, last);
        breakAtGapBefore(first);
        if (extremes.isEmpty()) {
            isBroken_ = true;
            return;
        }
        addPoint(first, series_.numbers_[first]);
        const std::size_t middle = first + (last - first) / 2;
        addPoint(middle, extremes.least);
        addPoint(middle, extremes.greatest);
        addPoint(last - 1, series_.numbers_[last - 1]);
    }

    std::vector<QPolygonF> take() { return std::move(pieces_); }

private:
    void breakAtGapBefore(std::size_t i)
    {
        if (series_.isBehindGap_[i])
            isBroken_ = true;
    }

    void addPoint(std::size_t i, double number)
    {
        if (std::isnan(number)) {
            isBroken_ = true;
            return;
        }
        if (isBroken_ || pieces_.empty())
            pieces_.emplace_back();
        isBroken_ = false;
        pieces_.back() << QPointF(series_.times_[i], number);
    }

    const CurveSeries& series_;
    std::vector<QPolygonF> pieces_;
    bool isBroken_ = false;
};

std::size_t CurveSeries::firstAt(double time) const
{
    const auto found = std::ranges::lower_bound(times_, time, {},
                                                [](quint32 seconds) { return static_cast<double>(seconds); });
    return static_cast<std::size_t>(found - times_.begin());
}

std::size_t CurveSeries::firstBehind(double time) const
{
    const auto found = std::ranges::upper_bound(times_, time, {},
                                                [](quint32 seconds) { return static_cast<double>(seconds); });
    return static_cast<std::size_t>(found - times_.begin());
}

Extremes CurveSeries::extremesIn(const TimeSpan& span) const
{
    return pyramid_.over(numbers_, firstAt(span.from), firstBehind(span.to));
}

std::vector<QPolygonF> CurveSeries::pieces(const TimeSpan& span, int columns) const
{
    const std::size_t inSight = firstAt(span.from);
    const std::size_t behind = firstBehind(span.to);
    const std::size_t first = inSight - std::min<std::size_t>(inSight, 1);
    const std::size_t last = std::min(behind + 1, times_.size());
    Pieces pieces(*this);
    if (last - first <= static_cast<std::size_t>(std::max(columns, 1)) * kFewPerColumn) {
        for (std::size_t i = first; i < last; ++i)
            pieces.addNumber(i);
        return pieces.take();
    }
    if (first < inSight)
        pieces.addNumber(first);
    std::size_t from = inSight;
    for (int column = 1; column <= columns && from < behind; ++column) {
        const std::size_t to =
            column == columns ? behind : firstAt(span.from + (span.to - span.from) * column / columns);
        if (to > from)
            pieces.addColumn(from, to);
        from = std::max(from, to);
    }
    if (behind < last)
        pieces.addNumber(behind);
    return pieces.take();
}

} // namespace vlk
