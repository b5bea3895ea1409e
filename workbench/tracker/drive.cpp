#include "tracker/drive.h"

#include "tracker/event_code.h"
#include "tracker/random.h"

#include <algorithm>

namespace tracker {

namespace {

// A hundred years; a clock that is wrong by more gets the last of these days.
constexpr int longestDays = 36525;

enum Seed : quint64 { SatelliteSeed = 1, WeatherSeed, CodeSeed };

constexpr double secondsPerHour = 3600;

double outsideTemperature(quint64 seed, qint64 time)
{
    const double hours = static_cast<double>(time) / secondsPerHour;
    const double daily = 5 * std::sin((hours / 24 - 0.4) * 2 * 3.14159265);
    return daily - 6 + 18 * wave(mix(seed, WeatherSeed), hours / 60);
}

EventCode codeOnTheMove(quint64 chance, const Moment& moment)
{
    if (chance % 4000 == 0)
        return EventCode::StrongShock;
    if (chance % 350 == 0)
        return EventCode::WeakShock;
    if (moment.speed > moment.speedLimit + 3)
        return EventCode::SpeedLimitExceeded;
    constexpr EventCode usual[] = {EventCode::Timer, EventCode::Distance, EventCode::Course};
    return usual[chance % std::size(usual)];
}

// What a record behind the first of its segment is for.
void nameRecord(Moment& moment, const Segment& segment, quint32 index, quint64 chance)
{
    const auto set = [&moment](EventCode code, RecordKind kind = RecordKind::Telemetry) {
        moment.code = static_cast<quint16>(code);
        moment.kind = kind;
    };
    const bool startOfTrip = segment.code == static_cast<quint16>(EventCode::IgnitionOn);
    const bool endOfTrip = segment.code == static_cast<quint16>(EventCode::IgnitionOff);
    if (index == 0)
        moment.code = segment.code;
    else if (segment.activity == Activity::Driving)
        set(codeOnTheMove(chance, moment));
    else if (startOfTrip && index == 1)
        set(EventCode::KeyTouched, RecordKind::Key);
    else if (endOfTrip && index == 1 && chance % 3 == 0)
        set(EventCode::TagRead, RecordKind::Tag);
    else if (endOfTrip && index == 1)
        set(EventCode::DoorOpened);
    else if (endOfTrip && index == 2)
        set(EventCode::DoorClosed);
    else
        set(segment.activity == Activity::Parked ? EventCode::ParkedTimer : EventCode::Timer);
}

} // namespace

Drive::Drive(quint64 seed, qint64 midnight) : seed_(seed), midnight_(midnight), begins_{Odometers{}} {}

Moment Drive::at(qint64 time)
{
    time = std::max(time, midnight_);
    const quint32 number = lastBefore(time);
    Moment result = moment(segmentAt(time), time);
    result.number = number;
    result.code = static_cast<quint16>(EventCode::OnRequest);
    measureFrom(number, result);
    return result;
}

Moment Drive::record(quint32 number)
{
    const Place place = placeOf(number);
    Moment result = moment(*place.segment, place.time());
    result.number = number;
    nameRecord(result, *place.segment, place.index, mix(mix(seed_, CodeSeed), number));
    if (number > 0)
        measureFrom(number - 1, result);
    else
        result.code = static_cast<quint16>(EventCode::Restart);
    return result;
}

void Drive::measureFrom(quint32 number, Moment& moment)
{
    const Place before = placeOf(number);
    const Moment last = this->moment(*before.segment, before.time());
    moment.segmentKm = moment.at.km - last.at.km;
    moment.segmentSeconds = static_cast<int>(moment.time - last.time);
    moment.movingSeconds = before.segment->activity == Activity::Driving ? moment.segmentSeconds : 0;
}

quint32 Drive::lastBefore(qint64 time)
{
    if (time < midnight_)
        return 0;
    const Segment& segment = segmentAt(time);
    const qint64 elapsed = std::min<qint64>(time - segment.from, segment.seconds - 1);
    return segment.at.records + static_cast<quint32>(elapsed / segment.interval());
}

quint32 Drive::firstAfter(qint64 time)
{
    const quint32 number = lastBefore(time);
    return placeOf(number).time() < time ? number + 1 : number;
}

const DayPlan& Drive::day(int index)
{
    index = std::clamp(index, 0, longestDays);
    Day& kept = days_[index % 2];
    if (kept.index == index)
        return kept.plan;
    while (static_cast<int>(begins_.size()) <= index + 1) {
        const auto next = static_cast<qint64>(begins_.size()) - 1;
        begins_.push_back(planDay(seed_, midnight_ + next * daySeconds, begins_.back()).end);
    }
    kept = {index, planDay(seed_, midnight_ + qint64(index) * daySeconds, begins_[index])};
    return kept.plan;
}

const Segment& Drive::segmentAt(qint64 time)
{
    const qint64 days = (std::max(time, midnight_) - midnight_) / daySeconds;
    const auto& segments = day(static_cast<int>(std::min<qint64>(days, longestDays))).segments;
    const auto after = std::upper_bound(segments.begin() + 1, segments.end(), time,
                                        [](qint64 t, const Segment& segment) { return t < segment.from; });
    return *(after - 1);
}

Drive::Place Drive::placeOf(quint32 number)
{
    while (begins_.back().records <= number && static_cast<int>(begins_.size()) <= longestDays)
        day(static_cast<int>(begins_.size()) - 1);
    const auto dayAfter =
        std::upper_bound(begins_.begin() + 1, begins_.end() - 1, number,
                         [](quint32 n, const Odometers& begin) { return n < begin.records; });
    const auto& segments = day(static_cast<int>(dayAfter - begins_.begin()) - 1).segments;
    const auto after =
        std::upper_bound(segments.begin() + 1, segments.end(), number,
                         [](quint32 n, const Segment& segment) { return n < segment.at.records; });
    const Segment& segment = *(after - 1);
    return {&segment, std::min(number - segment.at.records, segment.recordCount() - 1)};
}

Moment Drive::moment(const Segment& segment, qint64 time) const
{
    const double elapsed = static_cast<double>(std::min<qint64>(time - segment.from, segment.seconds));
    const double part = elapsed / segment.seconds;
    Moment result;
    result.time = time;
    result.activity = segment.activity;
    result.trip = segment.trip;
    result.seed = seed_;
    result.speed = segment.speedAt(elapsed);
    result.acceleration = segment.accelerationAt(elapsed);

    result.at = segment.at;
    result.at.km += segment.metresAt(elapsed) / 1000;
    const double fuel = segment.fuelDelta * part;
    result.at.fuel += fuel;
    result.at.fuelUsed += std::max(0.0, -fuel);
    result.at.engineSeconds += result.ignition() ? elapsed : 0;
    result.at.loadSeconds += segment.activity == Activity::Driving ? elapsed : 0;

    const double openKm = lastOpenKm(result.at.km);
    const double hidden = result.at.km - openKm;
    result.fix = hidden <= 0;
    result.fixTime =
        time - (result.fix ? 0 : static_cast<qint64>(hidden / std::max(result.speed, 20.0) * secondsPerHour));
    result.road = roadAt(openKm);
    result.speedLimit = speedLimitAt(result.at.km);
    const double sky = wave(mix(seed_, SatelliteSeed), static_cast<double>(time) / 150);
    result.satellites = result.fix ? 6 + static_cast<int>(sky * 9) : 2;
    result.outside = outsideTemperature(seed_, time);
    return result;
}

} // namespace tracker
