#include "telemetry/curves/span_moves.h"

#include <algorithm>

namespace vlk {

namespace {

constexpr double kShortest = 10; // seconds

TimeSpan within(TimeSpan span, const TimeSpan& whole)
{
    const double length = span.to - span.from;
    if (length >= whole.to - whole.from)
        return whole;
    const double from = std::clamp(span.from, whole.from, whole.to - length);
    return {from, from + length};
}

} // namespace

TimeSpan zoomed(const TimeSpan& span, double factor, double round, const TimeSpan& whole)
{
    const double length = span.to - span.from;
    if (length <= 0)
        return span;
    const double least = std::min(kShortest, whole.to - whole.from);
    const double now = std::max(length * factor, least);
    const double before = (round - span.from) / length;
    return within({round - before * now, round + (1 - before) * now}, whole);
}

TimeSpan moved(const TimeSpan& span, double share, const TimeSpan& whole)
{
    const double by = (span.to - span.from) * share;
    return within({span.from + by, span.to + by}, whole);
}

TimeSpan holding(const TimeSpan& span, double moment, const TimeSpan& whole)
{
    if (span.contains(moment))
        return span;
    const double half = (span.to - span.from) / 2;
    return within({moment - half, moment + half}, whole);
}

} // namespace vlk
