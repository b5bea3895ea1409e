#include "tracker/drive.h"

#include <algorithm>

namespace tracker {

namespace {

// Two years; a clock that is wrong by more gets the last of these days, since each day before it is planned.
constexpr int kLongestDays = 731;

// The day of the newest record, that of the one asked for, and the one before it.
constexpr std::size_t kKeptDays = 4;

} // namespace

Drive::Drive(quint64 seed, qint64 midnight, const SettingsHistory& settings)
    : seed_(seed), midnight_(midnight), settings_(settings), begins_{Begin{}}
{
}

void Drive::settingsChanged(qint64 time)
{
    const qint64 days = std::clamp<qint64>((time - midnight_) / kDaySeconds, 0, kLongestDays);
    if (static_cast<qint64>(begins_.size()) > days + 1)
        begins_.resize(static_cast<std::size_t>(days) + 1);
    days_.clear();
}

Moment Drive::at(qint64 time)
{
    time = std::max(time, midnight_);
    const quint32 number = lastBefore(time);
    Moment result = moment(dayAt(time), time);
    result.number = number;
    result.code = static_cast<quint16>(EventCode::OnRequest);
    result.settings = settings_.latest();
    measureFrom(number, result);
    return result;
}

Moment Drive::record(quint32 number)
{
    qint64 time = 0;
    const TrackPoint point = pointOf(number, time);
    Moment result = moment(dayAt(time), time);
    result.number = number;
    result.code = static_cast<quint16>(point.code);
    result.kind = point.kind;
    if (number > 0)
        measureFrom(number - 1, result);
    return result;
}

void Drive::measureFrom(quint32 number, Moment& moment)
{
    qint64 before = 0;
    pointOf(number, before);
    const Moment last = this->moment(dayAt(before), before);
    moment.segmentKm = moment.at.km - last.at.km;
    moment.segmentSeconds = static_cast<int>(moment.time - last.time);
    moment.movingSeconds = last.activity == Activity::Driving ? moment.segmentSeconds : 0;
}

quint32 Drive::lastBefore(qint64 time)
{
    if (time < midnight_)
        return 0;
    const Day& day = dayAt(time);
    const qint64 second = time - midnight_ - static_cast<qint64>(day.index) * kDaySeconds;
    const auto& points = day.tracked.points;
    const auto after = std::ranges::upper_bound(points, second, {}, &TrackPoint::second);
    const quint32 made = begins_[day.index].trace.records + static_cast<quint32>(after - points.begin());
    return std::max(made, 1U) - 1;
}

quint32 Drive::firstAfter(qint64 time)
{
    const quint32 number = lastBefore(time);
    qint64 found = 0;
    pointOf(number, found);
    return found < time ? number + 1 : number;
}

Drive::Day Drive::make(int index) const
{
    const Begin& begin = begins_[index];
    const qint64 midnight = midnight_ + static_cast<qint64>(index) * kDaySeconds;
    Day day{index, planDay(seed_, midnight, begin.at), {}};
    day.tracked = trackDay(seed_, midnight, day.plan, begin.trace, settings_);
    return day;
}

const Drive::Day& Drive::day(int index)
{
    index = std::clamp(index, 0, kLongestDays);
    const auto kept = std::ranges::find_if(days_, [index](const Day& day) { return day.index == index; });
    if (kept != days_.end()) {
        days_.splice(days_.begin(), days_, kept);
        return days_.front();
    }
    Day made;
    while (static_cast<int>(begins_.size()) <= index + 1) {
        made = make(static_cast<int>(begins_.size()) - 1);
        begins_.push_back({made.plan.end, made.tracked.end});
    }
    days_.push_front(made.index == index ? std::move(made) : make(index));
    if (days_.size() > kKeptDays)
        days_.pop_back();
    return days_.front();
}

const Drive::Day& Drive::dayAt(qint64 time)
{
    const qint64 days = (std::max(time, midnight_) - midnight_) / kDaySeconds;
    return day(static_cast<int>(std::min<qint64>(days, kLongestDays)));
}

// A number that is not made yet is one of the newest day that can be.
const Drive::Day& Drive::dayOf(quint32 number)
{
    while (begins_.back().trace.records <= number && static_cast<int>(begins_.size()) <= kLongestDays)
        day(static_cast<int>(begins_.size()) - 1);
    const auto dayAfter =
        std::upper_bound(begins_.begin() + 1, begins_.end() - 1, number,
                         [](quint32 n, const Begin& begin) { return n < begin.trace.records; });
    return day(static_cast<int>(dayAfter - begins_.begin()) - 1);
}

const TrackPoint& Drive::pointOf(quint32 number, qint64& time)
{
    static constexpr TrackPoint none{0, EventCode::Restart, RecordKind::Telemetry};
    const Day& day = dayOf(number);
    const auto& points = day.tracked.points;
    const std::size_t index = number - begins_[day.index].trace.records;
    const TrackPoint& point = points.empty() ? none : points[std::min<std::size_t>(index, points.size() - 1)];
    time = midnight_ + static_cast<qint64>(day.index) * kDaySeconds + point.second;
    return point;
}

Moment Drive::moment(const Day& day, qint64 time) const
{
    const auto& segments = day.plan.segments;
    const auto after =
        std::ranges::upper_bound(segments.begin() + 1, segments.end(), time, {}, &Segment::from);
    const Segment& segment = *(after - 1);
    const double elapsed = static_cast<double>(std::min<qint64>(time - segment.from, segment.seconds));
    Moment result;
    result.time = time;
    result.activity = segment.activity;
    result.trip = segment.trip;
    result.seed = seed_;
    result.speed = segment.speedAt(elapsed);
    result.acceleration = segment.accelerationAt(elapsed);

    result.at = segment.odometersAt(elapsed);
    result.speedLimit = speedLimitAt(result.at.km);
    const qint64 second = time - midnight_ - static_cast<qint64>(day.index) * kDaySeconds;
    result.sensed = day.tracked.sensed.at(second);
    result.settings = settings_.at(time).settings;
    result.outside = outsideTemperature(seed_, time);

    const NavigationRules& navigation = result.settings->navigation;
    const Fix fix = day.tracked.fixes.at(second);
    result.fix = fix.valid;
    result.fixTime = fix.valid ? time : fix.time;
    result.road = roadAt(fix.valid ? result.at.km : fix.km);
    result.satellites = satellitesAt(seed_, time, result.at.km, navigation);
    if (fix.valid && result.activity != Activity::Driving) {
        const bool ignition = result.settings->hasIgnition(result.sensed.lines);
        result.road =
            wandered(result.road, seed_, time, wanderingOf(navigation, ignition, result.sensed.moved()));
    }
    return result;
}

} // namespace tracker
