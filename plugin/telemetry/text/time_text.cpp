#include "telemetry/text/time_text.h"

#include "telemetry/text/local_zone.h"

#include <chrono>

namespace vlk {

namespace {

using std::chrono::sys_days;
using Clock = std::chrono::hh_mm_ss<std::chrono::seconds>;

struct LocalMoment
{
    std::chrono::year_month_day date;
    Clock clock;
};

LocalMoment momentAt(quint32 seconds, qint32 offset)
{
    const std::chrono::sys_seconds shifted{std::chrono::seconds(qint64{seconds} + offset)};
    const sys_days day = std::chrono::floor<std::chrono::days>(shifted);
    return {day, Clock(shifted - day)};
}

void addDate(AsciiText& text, const std::chrono::year_month_day& date)
{
    text.addDigits(static_cast<unsigned>(date.day()), 2) << '.';
    text.addDigits(static_cast<unsigned>(date.month()), 2) << '.' << static_cast<int>(date.year());
}

void addClock(AsciiText& text, const Clock& clock, int digitsOfHour)
{
    const auto hours = static_cast<unsigned>(clock.hours().count());
    text.addDigits(hours, hours < 10 ? digitsOfHour : 2) << ':';
    text.addDigits(static_cast<unsigned>(clock.minutes().count()), 2) << ':';
    text.addDigits(static_cast<unsigned>(clock.seconds().count()), 2);
}

QString textOf(void (*add)(AsciiText&, quint32, qint32), quint32 seconds, qint32 offset)
{
    AsciiText text;
    add(text, seconds, offset);
    return text.string();
}

} // namespace

void addClockAndDate(AsciiText& text, quint32 seconds, qint32 offset)
{
    const LocalMoment moment = momentAt(seconds, offset);
    addClock(text, moment.clock, 2);
    addDate(text << ' ', moment.date);
}

void addDateAndClock(AsciiText& text, quint32 seconds, qint32 offset)
{
    const LocalMoment moment = momentAt(seconds, offset);
    addDate(text, moment.date);
    addClock(text << ' ', moment.clock, 1);
}

void addZonedTime(AsciiText& text, quint32 seconds, qint32 offset)
{
    addClockAndDate(text, seconds, offset);
    text << " (UTC";
    if (offset != 0)
        text << (offset > 0 ? " +" : " ") << offset / 3600;
    text << ')';
}

QString localTimeText(quint32 seconds)
{
    return textOf(addClockAndDate, seconds, LocalZone().offsetAt(seconds));
}

QString dateTimeText(quint32 seconds)
{
    return textOf(addDateAndClock, seconds, LocalZone().offsetAt(seconds));
}

QString zonedTimeText(quint32 seconds, qint32 offset)
{
    return textOf(addZonedTime, seconds, offset);
}

} // namespace vlk
