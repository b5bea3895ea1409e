#include "telemetry/files/iso_times.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

namespace vlk {

namespace {

char* putTwo(char* to, int number)
{
    *to++ = static_cast<char>('0' + number / 10);
    *to++ = static_cast<char>('0' + number % 10);
    return to;
}

} // namespace

// Zones change at quarters of an hour.
qint32 IsoTimes::offsetAt(quint32 seconds)
{
    if (utcOffset_)
        return *utcOffset_;
    const std::int64_t quarter = seconds / 900;
    if (quarter != quarter_) {
        quarter_ = quarter;
        offset_ = zone_.offsetAt(seconds);
    }
    return offset_;
}

char* IsoTimes::putMoment(char* to, qint64 seconds)
{
    constexpr qint64 secondsOfDay = 86'400;
    const qint64 day = seconds >= 0 ? seconds / secondsOfDay : (seconds + 1) / secondsOfDay - 1;
    if (day != day_ || date_[0] == 0) {
        day_ = day;
        const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{day}}};
        const int year = std::clamp(static_cast<int>(date.year()), 0, 9999);
        char* end = putTwo(putTwo(date_, year / 100), year % 100);
        *end++ = '-';
        end = putTwo(end, static_cast<int>(static_cast<unsigned>(date.month())));
        *end++ = '-';
        end = putTwo(end, static_cast<int>(static_cast<unsigned>(date.day())));
        *end = 'T';
    }
    to = std::copy(std::begin(date_), std::end(date_), to);
    const int rest = static_cast<int>(seconds - day * secondsOfDay);
    to = putTwo(to, rest / 3600);
    *to++ = ':';
    to = putTwo(to, rest / 60 % 60);
    *to++ = ':';
    return putTwo(to, rest % 60);
}

char* IsoTimes::put(char* to, quint32 seconds)
{
    const qint32 offset = std::clamp(offsetAt(seconds), -86'399, 86'399);
    to = putMoment(to, qint64{seconds} + offset);
    *to++ = offset < 0 ? '-' : '+';
    const int minutes = std::abs(offset) / 60;
    to = putTwo(to, minutes / 60);
    *to++ = ':';
    return putTwo(to, minutes % 60);
}

char* IsoTimes::putUtc(char* to, quint32 seconds)
{
    to = putMoment(to, seconds);
    *to++ = 'Z';
    return to;
}

} // namespace vlk
