#include "telemetry/fuel/fuel_events.h"

#include "telemetry/files/track_points.h"
#include "telemetry/fuel/burnt_fuel.h"
#include "telemetry/fuel/level_noise.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace vlk {

namespace {

// Litres, below which a change between two medians tells nothing.
constexpr double kLeastStep = 0.5;
// Litres a second by which a level may creep while nobody takes or pours: 3 an hour.
constexpr double kCreep = 3 / 3600.0;
// How far what was burnt may be from the average.
constexpr double kBurnSpread = 0.5;
// Seconds of a pause in one pouring.
constexpr double kPause = 600;
// Seconds and medians from which the level before and after is taken, and over which it has to hold.
constexpr double kNear = 900;
constexpr int kNearMedians = 3;
constexpr double kFar = 1200;
constexpr int kFarMedians = 2;
constexpr int kLeastLevels = 2;
// What has to be left of a step over that time.
constexpr double kHeld = 0.6;
// A step of this share of the lesser threshold ends averages.
constexpr double kBarrier = 0.3;
// Seconds, in which nobody stops, pours and drives off.
constexpr double kShortestStop = 120;
// Litres by which a level that is the same may differ, and the share of the change by which it may.
constexpr double kSameLevel = 0.5;
constexpr double kSameShare = 0.05;
constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();

class EventFinder
{
public:
    EventFinder(RecordColumns& columns, const NumberColumn& litres, const std::vector<LevelMedian>& medians,
                const FuelThresholds& thresholds)
        : times_(columns.times()), litres_(litres), byTime_(recordsByTime(columns)), medians_(medians),
          thresholds_(thresholds), burnt_(medians, std::min(thresholds.rise, thresholds.fall) / 2),
          walls_(medians_.size(), false)
    {
    }

    std::vector<FuelEvent> find()
    {
        std::vector<Step> steps = this->steps();
        std::ranges::stable_sort(steps, std::ranges::greater(), [this](const Step& step) {
            return std::abs(medians_[step.to].litres - medians_[step.from].litres);
        });
        std::vector<FuelEvent> events;
        for (const Step& step : steps) {
            if (std::ranges::any_of(walls_.begin() + step.from, walls_.begin() + step.to, std::identity()))
                continue;
            const std::optional<FuelEvent> event = this->event(step);
            if (!event)
                continue;
            events.push_back(*event);
            std::fill(walls_.begin() + step.from, walls_.begin() + step.to, true);
        }
        std::ranges::sort(events, {}, &FuelEvent::time);
        return events;
    }

private:
    // Medians between which the level goes one way.
    struct Step
    {
        int from;
        int to;
    };

    int size() const { return static_cast<int>(medians_.size()); }
    double seconds(int i) const { return medians_[i + 1].middle() - medians_[i].middle(); }

    // Litres a second.
    double burning(const LevelMedian& median, double moving) const
    {
        return median.moves ? moving : median.burns ? burnt_.average(false) : 0;
    }
    double burning(const LevelMedian& median) const { return burning(median, burnt_.average(true)); }

    double burningBeside(int start, int direction, bool moves) const
    {
        return burnt_.beside(start, direction, moves, walls_);
    }

    bool isSamePlace(int i) const
    {
        const LevelMedian& one = medians_[i];
        const LevelMedian& other = medians_[i + 1];
        return vlk::isSamePlace(one.latitude, one.longitude, other.latitude, other.longitude);
    }

    double burntBetween(int i) const { return burntBetween(i, burnt_.average(true)); }
    double burntBetween(int i, double moving) const
    {
        const LevelMedian& one = medians_[i];
        const LevelMedian& other = medians_[i + 1];
        const double least = std::min(seconds(i), kLongPause);
        if (seconds(i) > kLongPause && isSamePlace(i))
            return burning(one.moves ? other : one, moving) * least;
        if (seconds(i) > kLongPause && !one.burns && !other.burns &&
            std::isnan(one.latitude + other.latitude))
            return 0;
        if (seconds(i) > kLongPause)
            return moving * seconds(i);
        // An engine that was started in between ran while the sensors woke.
        const double between = other.from - one.until;
        const double ran = one.burns == other.burns ? between : std::min<double>(between, kWakeTime);
        const double first = burning(one, moving);
        const double second = burning(other, moving);
        return first * (one.until - one.from) / 2 + second * (other.until - other.from) / 2 +
               std::max(first, second) * ran;
    }

    // How much more than burnt went, or came; 0 where it tells nothing.
    double change(int i) const
    {
        const double burnt = burntBetween(i);
        const double change = medians_[i + 1].litres - medians_[i].litres + burnt;
        return std::abs(change) < std::max(kLeastStep, kBurnSpread * burnt + kCreep * seconds(i)) ? 0
                                                                                                  : change;
    }

    std::vector<Step> steps() const
    {
        std::vector<Step> steps;
        for (int i = 0; i + 1 < size(); ++i) {
            const double first = change(i);
            if (first == 0)
                continue;
            int last = i;
            for (int next = i + 1; next + 1 < size() && !medians_[next].moves &&
                                   medians_[next].from - medians_[last + 1].from <= kPause;
                 ++next) {
                const double more = change(next);
                if (more * first < 0)
                    break;
                // What swings as the vehicle drives off is no more of it, unless it was still being poured
                // then.
                const bool goesOn = last == next - 1 && medians_[next].count < kLeastLevels;
                if (more != 0 && (!medians_[next + 1].moves || isBarrier(next) || goesOn))
                    last = next;
            }
            steps.push_back({i, last + 1});
            i = last;
        }
        return steps;
    }

    // Nobody pours while the vehicle moves, though the fuel swings.
    bool isBarrier(int i) const
    {
        return !(medians_[i].moves && medians_[i + 1].moves) &&
               std::abs(change(i)) >= kBarrier * std::min(thresholds_.rise, thresholds_.fall);
    }

    // The litres at the inner end of the median at `start`, by it and those beyond: all that are `wanted`
    // and lie close by.
    struct Level
    {
        double litres;
        int count = 0; // of levels
        bool endsAtEvent = false;

        // Another pouring begins from what it is.
        bool isSure() const { return count >= kLeastLevels || endsAtEvent; }
    };
    template <class Wanted>
    Level level(int start, int direction, Wanted wanted) const
    {
        std::vector<double> numbers;
        Level level{};
        const LevelMedian& inner = medians_[start];
        const double moving = burningBeside(start, direction, true);
        double burnt = burning(inner, moving) * (inner.until - inner.from) / 2; // up to the inner end
        for (int i = start; i >= 0 && i < size(); i += direction) {
            level.endsAtEvent = i != start && walls_[std::min(i, i - direction)];
            if (level.endsAtEvent ||
                (i != start && !wanted(i, std::abs(medians_[i].middle() - inner.middle()),
                                       static_cast<int>(numbers.size()))))
                break;
            if (i != start)
                burnt += burntBetween(std::min(i, i - direction), moving);
            numbers.push_back(medians_[i].litres + direction * burnt);
            level.count += medians_[i].count;
        }
        level.litres = medianOf(numbers);
        return level;
    }

    Level nearLevel(int start, int direction) const
    {
        return level(start, direction, [&](int i, double distance, int taken) {
            return taken < kNearMedians && distance <= kNear && medians_[i].moves == medians_[start].moves &&
                   !isBarrier(std::min(i, i - direction));
        });
    }

    Level farLevel(int start, int direction) const
    {
        return level(start, direction, [](int /*i*/, double distance, int taken) {
            return taken < kFarMedians || distance <= kFar;
        });
    }

    // Whether the state of the vehicle is known, and this one, all the time.
    bool isAlways(const Step& step, bool LevelMedian::*state) const
    {
        for (int i = step.from; i < step.to; ++i) {
            if (!(medians_[i].*state) || !(medians_[i + 1].*state) ||
                medians_[i + 1].from - medians_[i].until > kShortestStop)
                return false;
        }
        return true;
    }

    // What the engine burns in so many seconds of a step, if on as it does before it or behind it.
    double evenly(const Step& step, double seconds) const
    {
        const auto beside = [&](int i, int direction) {
            return burningBeside(i, direction, medians_[i].moves);
        };
        return std::max(beside(step.from, kBackwards), beside(step.to, kForwards)) * seconds;
    }

    double burntInside(const Step& step) const
    {
        const double seconds = medians_[step.to].from - medians_[step.from].until;
        return isAlways(step, &LevelMedian::burns) ? evenly(step, seconds) : 0;
    }

    // Nobody pours while the vehicle moves. Where a tank begins to be drawn on, or the road to rise, the
    // level falls evenly from there on; what a tracker told late falls at once.
    bool isSharp(const Step& step, double litres) const
    {
        const LevelMedian& one = medians_[step.from];
        const LevelMedian& other = medians_[step.to];
        const double even = evenly(step, other.middle() - one.middle());
        return (other.litres - one.litres + even) / litres >= kHeld;
    }

    // The fuel swings while the vehicle moves: a step has to be clear of that then.
    double swing()
    {
        if (!noise_)
            noise_ = levelNoise(medians_);
        return *noise_;
    }

    std::optional<FuelEvent> event(const Step& step)
    {
        const double before = nearLevel(step.from, kBackwards).litres;
        const double after = nearLevel(step.to, kForwards).litres;
        const double litres = after - before;
        const auto exceeds = [&](double more) {
            return litres + burntUnseen(step) >= thresholds_.rise + more ||
                   -litres >= thresholds_.fall + (1 + kBurnSpread) * longBurnt(step) + more;
        };
        const auto isMotion = [&] { return isAlways(step, &LevelMedian::moves); };
        if (!exceeds(0) || (litres < 0 && !exceeds(burntInside(step))) ||
            (isMotion() && (!exceeds(swing()) || !isSharp(step, litres))))
            return {};
        const Level was = farLevel(step.from, kBackwards);
        const Level stays = farLevel(step.to, kForwards);
        const auto isHeld = [litres](double part) { return part / litres >= kHeld; };
        if (!was.isSure() || !stays.isSure() || !isHeld(after - was.litres) || !isHeld(stays.litres - before))
            return {};
        const auto [record, last] = ends(medians_[step.from], medians_[step.to], litres);
        return FuelEvent{record, last, times_[record], times_[last], before, after, kNowhere, kNowhere};
    }

    int placeOf(int record) const
    {
        const auto time = [this](int each) { return times_[each]; };
        const auto first = std::ranges::lower_bound(byTime_, times_[record], {}, time);
        return static_cast<int>(std::ranges::find(first, byTime_.end(), record) - byTime_.begin());
    }

    // The record with the level of `median` that is next to the change, as a person finds it: not one that is
    // on the way already, and one that no median counts if it says the same. `direction`: to the change;
    // `end`: the record there that is none of it.
    int endOf(const LevelMedian& median, int direction, int end, double change) const
    {
        const auto [outermost, innermost] = direction == kForwards ? std::pair(median.first, median.last)
                                                                   : std::pair(median.last, median.first);
        int place = placeOf(innermost);
        const double most = std::max(kSameLevel, kSameShare * std::abs(change));
        const double sign = std::copysign(1, direction * change);
        const auto isOnTheWay = [&](double litres) {
            return std::isnan(litres) || (litres - median.litres) * sign > most;
        };
        // In a vehicle in motion all levels swing.
        while (!median.moves && byTime_[place] != outermost && isOnTheWay(litres_[byTime_[place]]))
            place -= direction;
        int record = byTime_[place];
        const double level = litres_[record];
        for (place += direction; byTime_[place] != end; place += direction) {
            const double other = litres_[byTime_[place]];
            if (std::abs(other - level) > kSameLevel)
                break;
            if (!std::isnan(other))
                record = byTime_[place];
        }
        return record;
    }

    std::pair<int, int> ends(const LevelMedian& one, const LevelMedian& other, double change) const
    {
        const int record = endOf(one, kForwards, other.first, change);
        return {record, endOf(other, kBackwards, record, change)};
    }

    // What of a refuelling was burnt again before a level told it: where the engine runs behind a pause it
    // ran in it, at least while the sensors woke, which they do once.
    double burntUnseen(const Step& step) const
    {
        double burnt = 0;
        for (int i = step.from; i < step.to; ++i) {
            const LevelMedian& next = medians_[i + 1];
            burnt =
                std::max(burnt, burning(next) * std::min<double>(next.from - medians_[i].until, kWakeTime));
        }
        return burnt;
    }

    // What was burnt in long pauses, of which nothing is known but that.
    double longBurnt(const Step& step) const
    {
        double burnt = 0;
        for (int i = step.from; i < step.to; ++i)
            burnt += medians_[i + 1].from - medians_[i].until > kLongPause ? burntBetween(i) : 0;
        return burnt;
    }

    const std::vector<quint32>& times_;
    const NumberColumn& litres_;
    const std::vector<int> byTime_;
    const std::vector<LevelMedian>& medians_;
    const FuelThresholds thresholds_;
    const BurntFuel burnt_;
    std::vector<bool> walls_;     // between a median and the next: an event
    std::optional<double> noise_; // of the level, once it is asked for
};

void tellPlaces(RecordColumns& columns, std::vector<FuelEvent>& events)
{
    if (events.empty())
        return;
    std::vector<TrackPoint> points = trackPoints(columns);
    std::ranges::stable_sort(points, {}, &TrackPoint::time);
    for (FuelEvent& event : events) {
        const auto behind = std::ranges::upper_bound(points, event.until, {}, &TrackPoint::time);
        if (behind == points.begin())
            continue;
        event.latitude = behind[-1].latitude;
        event.longitude = behind[-1].longitude;
    }
}

} // namespace

std::vector<FuelEvent> findFuelEvents(RecordColumns& columns, const NumberColumn& litres,
                                      const std::vector<LevelMedian>& medians,
                                      const FuelThresholds& thresholds)
{
    if (medians.empty())
        return {};
    std::vector<FuelEvent> events = EventFinder(columns, litres, medians, thresholds).find();
    tellPlaces(columns, events);
    return events;
}

} // namespace vlk
