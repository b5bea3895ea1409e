#include "telemetry/fuel/journey.h"

#include "telemetry/files/raw_values.h"
#include "telemetry/files/track_points.h"
#include "telemetry/text/item_text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace vlk {

namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 kDay = qint64{24} * 3600;
constexpr double kLeastWay = 1000; // metres, for what is burnt on a hundred kilometres

} // namespace

double JourneySummary::per100Km() const
{
    return metres >= kLeastWay ? fuelUsed() / metres * 100'000 : kNoNumber;
}

struct Journey::Making
{
    // Degrees; NaN for no point of the track.
    struct Place
    {
        double latitude = kNoNumber;
        double longitude = kNoNumber;
        bool isPoint() const { return !std::isnan(latitude); }
        TrackPoint point() const { return {-1, 0, latitude, longitude, false}; }
    };

    RecordColumns& columns;
    std::vector<int> records{}; // by time
    NumberColumn speed{};
    std::vector<Ignition> ignition{};
    quint32 missing = 0;         // records in front of the stretches so far
    std::vector<Place> places{}; // by record
    std::optional<TrackPoint> last{};
    int before = -1; // the stretch of the last point
};

Journey::Journey(RecordColumns& columns, const NumberColumn& litres, std::vector<FuelEvent> events)
{
    for (const auto& step : stepsToMake(columns, litres, std::move(events)))
        step();
}

Journey::Steps Journey::stepsToMake(RecordColumns& columns, const NumberColumn& litres,
                                    std::vector<FuelEvent> events)
{
    events_ = std::move(events);
    const auto making = std::make_shared<Making>(Making{columns});
    Steps steps;
    steps.emplace_back([making] { making->columns.numbers(item("Speed")); });
    steps.emplace_back([making] { making->records = recordsByTime(making->columns); });
    steps.emplace_back([making] { making->speed = speeds(making->columns); });
    steps.emplace_back([making] { making->ignition = ignitions(making->columns, making->records); });
    steps.emplace_back([this, making] {
        stretches_.reserve(making->records.size());
        making->places.resize(making->columns.times().size());
    });
    const int all = columns.store().size();
    const auto inPieces = [&](int size, auto work) {
        for (int first = 0; first < all; first += size)
            steps.emplace_back([this, making, work, first, behind = std::min(first + size, all)] {
                (this->*work)(*making, first, behind);
            });
    };
    inPieces(100'000, &Journey::takeStretches);
    inPieces(100'000, &Journey::takePoints);
    // Geodesics take their time.
    inPieces(20'000, &Journey::measureWay);
    steps.emplace_back([this, making, &litres] {
        if (!litres.empty())
            medians_ = levelMedians(making->columns, litres);
    });
    return steps;
}

// Looks at the records, by time, from `first` to before `behind`; measureWay() counts so too.
void Journey::takeStretches(Making& making, int first, int behind)
{
    const std::vector<quint32>& times = making.columns.times();
    const std::vector<quint32>& numbers = making.columns.recordNumbers();
    const std::vector<quint32>& missing = making.columns.missingUpTo();
    const std::vector<int>& records = making.records;
    const NumberColumn& speed = making.speed;
    const std::vector<Ignition>& ignition = making.ignition;
    const std::size_t end = std::min(static_cast<std::size_t>(behind), records.size());
    for (auto i = static_cast<std::size_t>(first); i < end; ++i) {
        const int record = records[i];
        const bool isLast = i + 1 == records.size();
        const int next = isLast ? record : records[i + 1];
        const bool isGap = isLast || areFarApart(times[record], times[next]);
        const bool stands = speed[record] < kMovesFrom;
        const bool standsNext = !isLast && speed[next] < kMovesFrom;
        // Times may fall where numbers rise: each one counts once.
        const quint32 before = making.missing;
        making.missing = std::max(before, missing[next]);
        stretches_.push_back({.time = times[record],
                              .speed = static_cast<float>(speed[record]),
                              .metres = 0,
                              .missing = std::min(making.missing - before, kMostMissing),
                              .moves = speed[record] >= kMovesFrom && !isGap,
                              .stands = stands && (!isGap || standsNext),
                              .engine = ignition[record] == Ignition::On,
                              .isEngineKnown = ignition[record] != Ignition::Unknown,
                              .isPoint = false,
                              .isWithoutFix = false,
                              .isCounted = !isGap,
                              .isNumbered = numbers[record] != 0});
    }
}

// Here `first` and `behind` count the records in their order in the store.
void Journey::takePoints(Making& making, int first, int behind)
{
    const std::optional<TrackPoint> before = making.last;
    forEachTrackPoint(making.columns, first, behind, before ? &*before : nullptr,
                      [&making](const TrackPoint& point) {
                          making.places[point.record] = {point.latitude, point.longitude};
                          making.last = point;
                      });
}

void Journey::measureWay(Making& making, int first, int behind)
{
    const std::vector<int>& records = making.records;
    const std::vector<Making::Place>& places = making.places;
    const std::vector<quint32>& numbers = making.columns.recordNumbers();
    const RawValues latitudes(making.columns.store(), element("Latitude"));
    int& before = making.before;
    const std::size_t end = std::min(static_cast<std::size_t>(behind), records.size());
    for (auto i = static_cast<std::size_t>(first); i < end; ++i) {
        const Making::Place& place = places[records[i]];
        if (!place.isPoint()) {
            const std::optional<std::uint64_t> raw = latitudes.at(records[i]);
            stretches_[i].isWithoutFix = raw && !std::isnan(itemNumber(*raw, item("Latitude")));
            continue;
        }
        stretches_[i].isPoint = true;
        // The coordinates of a vehicle that stands wander.
        if (before >= 0) {
            const Stretch& last = stretches_[before];
            const bool isGap = areFarApart(last.time, stretches_[i].time);
            // Where records are missing nobody knows the way, but that it is not the straight one.
            const bool isKnown = !isGap || numbers[records[i]] - numbers[records[before]] == i - before;
            if (isKnown && (isGap || last.speed >= kMovesFrom || stretches_[i].speed >= kMovesFrom))
                stretches_[before].metres =
                    static_cast<float>(metresBetween(places[records[before]].point(), place.point()));
            const Making::Place& was = places[records[before]];
            if (isGap && !isSamePlace(was.latitude, was.longitude, place.latitude, place.longitude))
                noStandingInGaps(before, static_cast<int>(i));
        }
        before = static_cast<int>(i);
    }
}

// A vehicle that is elsewhere afterwards did not stand, unless it was seen to move in between.
void Journey::noStandingInGaps(int first, int behind)
{
    const auto between = std::span(stretches_).subspan(first, behind - first);
    if (std::ranges::any_of(between, [](const Stretch& each) { return each.speed >= kMovesFrom; }))
        return;
    for (Stretch& stretch : between)
        stretch.stands = stretch.stands && stretch.isCounted;
}

JourneySummary Journey::summary(double from, double until) const
{
    const auto first = std::ranges::lower_bound(stretches_, from, {}, &Stretch::time);
    const auto end = std::ranges::upper_bound(first, stretches_.end(), until, {}, &Stretch::time);
    JourneySummary sum;
    sum.fuelBefore = sum.fuelAfter = sum.greatestSpeed = kNoNumber;
    if (first == end)
        return sum;
    const auto isAny = [&](auto is) { return std::any_of(first, end, is); };
    if (!isAny([](const Stretch& stretch) { return !std::isnan(stretch.speed); }))
        sum.moving = sum.standing = kNoNumber;
    if (!isAny([](const Stretch& stretch) { return stretch.isEngineKnown != 0; }))
        sum.engine = kNoNumber;
    if (!isAny([](const Stretch& stretch) { return stretch.isPoint != 0; }))
        sum.metres = kNoNumber;
    if (!isAny([](const Stretch& stretch) { return (stretch.isPoint | stretch.isWithoutFix) != 0; }))
        sum.withoutFix = kNoNumber;
    if (!isAny([](const Stretch& stretch) { return stretch.isNumbered != 0; }))
        sum.missing = kNoNumber;
    sum.from = first->time;
    sum.until = end[-1].time;
    sum.records = static_cast<int>(end - first);
    for (auto stretch = first; stretch != end; ++stretch) {
        sum.greatestSpeed = std::fmax(sum.greatestSpeed, stretch->speed);
        if (stretch + 1 == end)
            break;
        const auto seconds = static_cast<double>(stretch[1].time - stretch->time);
        sum.metres += stretch->metres;
        sum.moving += stretch->moves ? seconds : 0;
        sum.standing += stretch->stands ? seconds : 0;
        sum.engine += stretch->engine && stretch->isCounted ? seconds : 0;
        sum.withoutFix += stretch->isWithoutFix && stretch->isCounted ? seconds : 0;
        sum.missing += stretch->missing;
    }
    takeFuel(sum, from, until);
    return sum;
}

// What is left of an event that began before `from` is not used in this time, nor does it come from nowhere:
// the level starts and ends beside events, not on their way.
void Journey::takeFuel(JourneySummary& sum, double from, double until) const
{
    const auto first = std::ranges::lower_bound(medians_, from, {}, &LevelMedian::from);
    const auto end = std::ranges::upper_bound(first, medians_.end(), until, {}, &LevelMedian::from);
    const bool isAny = first != end;
    if (isAny) {
        sum.fuelBefore = first->litres;
        sum.fuelAfter = end[-1].litres;
    }
    bool isFirst = true;
    for (const FuelEvent& event : events_) {
        const bool isBefore = event.time < from;
        const bool isBehind = event.time >= until && event.until > until;
        if (isBefore && event.until <= from)
            continue;
        if (isBehind) {
            if (isAny && event.time < end[-1].until)
                sum.fuelAfter = event.before;
            break;
        }
        if (isFirst && (isBefore || !isAny || event.time < first->until))
            sum.fuelBefore = isBefore ? event.after : event.before;
        isFirst = false;
        if (!isAny || event.until >= end[-1].from)
            sum.fuelAfter = event.after;
        if (isBefore)
            continue;
        ++(event.isRefuelling() ? sum.refuellings : sum.drains);
        (event.isRefuelling() ? sum.refuelled : sum.drained) += std::abs(event.litres());
    }
}

std::vector<JourneySummary> Journey::days(qint32 utcOffset) const
{
    std::vector<JourneySummary> days;
    for (auto next = stretches_.begin(); next != stretches_.end();) {
        const qint64 local = qint64{next->time} + utcOffset;
        const qint64 midnight = local - ((local % kDay) + kDay) % kDay - utcOffset;
        const auto end = static_cast<double>(midnight + kDay);
        days.push_back(summary(static_cast<double>(midnight), end - 0.5));
        next = std::ranges::lower_bound(next, stretches_.end(), end, {}, &Stretch::time);
    }
    return days;
}

} // namespace vlk
