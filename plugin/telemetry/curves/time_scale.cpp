#include "telemetry/curves/time_scale.h"

#include "base/translated.h"
#include "telemetry/shown/record_cell.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;

struct TimeStep
{
    qint64 major;
    qint64 minor;
};

constexpr TimeStep kTimeSteps[] = {
    {1, 1},
    {2, 1},
    {5, 1},
    {10, 2},
    {15, 5},
    {30, 10},
    {kMinute, 15},
    {2 * kMinute, kMinute},
    {5 * kMinute, kMinute},
    {10 * kMinute, 2 * kMinute},
    {15 * kMinute, 5 * kMinute},
    {30 * kMinute, 10 * kMinute},
    {kHour, 15 * kMinute},
    {2 * kHour, kHour},
    {3 * kHour, kHour},
    {6 * kHour, kHour},
    {12 * kHour, 3 * kHour},
    {kDay, 6 * kHour},
    {2 * kDay, kDay},
    {7 * kDay, kDay},
    {14 * kDay, 7 * kDay},
    {28 * kDay, 7 * kDay},
    {91 * kDay, 7 * kDay},
    {364 * kDay, 91 * kDay},
    {3640 * kDay, 364 * kDay},
};

std::vector<double> roundMoments(const TimeSpan& span, qint64 step, qint32 utcOffset)
{
    std::vector<double> moments;
    const double first = std::ceil((span.from + utcOffset) / step) * step - utcOffset;
    const auto count = first <= span.to ? static_cast<int>((span.to - first) / step) + 1 : 0;
    moments.reserve(count);
    for (int i = 0; i < count; ++i)
        moments.push_back(first + static_cast<double>(i) * step);
    return moments;
}

QString counted(qint64 count, const char* unit)
{
    return QString::number(count) + QChar::Nbsp + translated(unit);
}

} // namespace

TimeTicks timeTicks(const TimeSpan& span, int most, qint32 utcOffset)
{
    const double length = span.to - span.from;
    const auto fits = [&](const TimeStep& step) { return length / step.major <= std::max(most, 1); };
    const auto* step = std::ranges::find_if(kTimeSteps, fits);
    if (step == std::end(kTimeSteps))
        --step;
    return {static_cast<double>(step->major), roundMoments(span, step->major, utcOffset),
            roundMoments(span, step->minor, utcOffset)};
}

QString tickText(double time, double step, qint32 utcOffset)
{
    const char* form = "dd.MM.yyyy";
    if (step < kMinute)
        form = "dd.MM. HH:mm:ss";
    else if (step < kDay)
        form = "dd.MM. HH:mm";
    else if (step < 28 * kDay)
        form = "dd.MM.";
    return momentText(static_cast<qint64>(time), utcOffset, form);
}

QString momentText(double time, double other, qint32 utcOffset)
{
    const auto day = [&](double moment) { return std::floor((moment + utcOffset) / kDay); };
    const auto seconds = static_cast<qint64>(time);
    return day(time) == day(other) ? momentText(seconds, utcOffset, "HH:mm:ss")
                                   : momentText(seconds, utcOffset);
}

QString durationText(double seconds)
{
    const auto whole = static_cast<qint64>(std::abs(seconds));
    QString told = seconds < 0 ? QStringLiteral("-") : QString();
    if (whole < kMinute)
        return told + counted(whole, "abbr_003");
    if (whole < kHour)
        return told + counted(whole / kMinute, "abbr_002");
    if (whole < kDay) {
        told += counted(whole / kHour, "abbr_001");
        const QString minutes = QStringLiteral("%1").arg(whole % kHour / kMinute, 2, 10, QLatin1Char('0'));
        return told + QLatin1Char(' ') + minutes + QChar::Nbsp + translated("abbr_002");
    }
    return told + counted(whole / kDay, "abbr_004") + QLatin1Char(' ') +
           counted(whole % kDay / kHour, "abbr_001");
}

} // namespace vlk
