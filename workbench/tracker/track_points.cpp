#include "tracker/track_points.h"

#include "tracker/random.h"
#include "tracker/sensing.h"
#include "tracker/vehicle.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

enum PointSeed : quint64 { WeatherSeed = 2, TagSeed = 4 };

// Between two looks at lines and sensors.
constexpr int kLookWhileDriving = 10;
constexpr int kLookWhileStanding = 30;
// A driver's key is touched after the ignition, a tag is read after it went off.
constexpr int kKeyAfter = 20;
constexpr int kTagAfter = 40;

bool begins(const Segment& segment, EventCode code)
{
    return segment.code == static_cast<quint16>(code);
}

class Recorder
{
public:
    Recorder(quint64 seed, qint64 midnight, const Trace& begin, const SettingsHistory& settings)
        : seed_(seed), midnight_(midnight), history_(settings),
          now_(begin), day_{{}, Timeline(begin.sensed), Timeline(begin.fix), {}}
    {
        if (now_.records == 0) {
            now_.time = midnight_ - 1;
            record(midnight_, EventCode::Restart);
        }
    }

    void follow(const Segment& segment)
    {
        segment_ = &segment;
        const bool driving = segment.activity == Activity::Driving;
        if (begins(segment, EventCode::FillingStart) || begins(segment, EventCode::FillingEnd))
            record(segment.from, static_cast<EventCode>(segment.code));
        for (int second = 0; second < segment.seconds;) {
            const qint64 time = segment.from + second;
            if (time > settings_.until || !settings_.settings)
                settings_ = history_.at(time);
            const int look = driving ? kLookWhileDriving : kLookWhileStanding;
            if (second % look == 0)
                measure(second);
            locate(second);
            movement(second);
            packets(second);
            point(second);
            second = driving ? second + 1 : nextStanding(second);
        }
    }

    TrackedDay result()
    {
        day_.end = now_;
        return std::move(day_);
    }

private:
    bool driving() const { return segment_->activity == Activity::Driving; }
    const TrackRules& track() const { return settings_.settings->track; }
    double kmAt(int second) const { return segment_->at.km + segment_->metresAt(second) / 1000; }

    // The way and the course of the point belong to the second in which it is asked for.
    void record(qint64 time, EventCode code, RecordKind kind = RecordKind::Telemetry)
    {
        const qint64 at = std::max(time, now_.time + 1);
        const qint64 second = at - midnight_;
        if (second >= kDaySeconds)
            return;
        day_.points.push_back({static_cast<int>(second), code, kind});
        ++now_.records;
        now_.time = at;
        if (segment_) {
            now_.km = kmAt(static_cast<int>(time - segment_->from));
            now_.course = roadAt(now_.km).course;
        }
    }

    void measure(int second)
    {
        Moment moment;
        moment.time = segment_->from + second;
        moment.activity = segment_->activity;
        moment.trip = segment_->trip;
        moment.speed = segment_->speedAt(second);
        moment.acceleration = segment_->accelerationAt(second);
        moment.at = segment_->odometersAt(second);
        moment.outside = outsideTemperature(seed_, moment.time);
        moment.seed = seed_;
        moment.sensed = now_.sensed;
        moment.settings = settings_.settings;
        events_.clear();
        now_.sensed = sense(Vehicle(moment, Controls()), *settings_.settings, events_);
        day_.sensed.add(static_cast<int>(moment.time - midnight_), now_.sensed);
        for (const EventCode event : events_)
            record(moment.time, event);
    }

    void locate(int second)
    {
        const bool before = now_.fix.valid;
        navigate(now_.fix, seed_, *segment_, second, settings_.settings->navigation);
        if (now_.fix.valid != before)
            day_.fixes.add(static_cast<int>(segment_->from + second - midnight_), now_.fix);
    }

    // Starting, stopping and speeding make points whatever the limits are.
    void movement(int second)
    {
        const qint64 time = segment_->from + second;
        if (driving()) {
            if (now_.stopTold && track().startAndStop)
                record(time, EventCode::MovementStart);
            now_.stopTold = false;
            now_.standsSince = 0;
        } else {
            if (now_.standsSince == 0)
                now_.standsSince = time;
            if (!now_.stopTold && time - now_.standsSince >= track().stopAfter) {
                now_.stopTold = true;
                if (track().startAndStop)
                    record(time, EventCode::MovementStop);
            }
        }
        const bool speeding = segment_->speedAt(second) > track().maxSpeed;
        if (speeding && !now_.speeding && track().speeding)
            record(time, EventCode::SpeedLimitExceeded);
        now_.speeding = speeding;
    }

    void packets(int second)
    {
        const qint64 time = segment_->from + second;
        if (begins(*segment_, EventCode::IgnitionOn) && second == kKeyAfter)
            record(time, EventCode::KeyTouched, RecordKind::Key);
        const auto chance = mix(mix(seed_, TagSeed), static_cast<quint64>(segment_->from));
        if (begins(*segment_, EventCode::IgnitionOff) && second == kTagAfter && chance % 3 == 0)
            record(time, EventCode::TagRead, RecordKind::Tag);
    }

    // Seconds between two points by time, 0 for none.
    int period() const
    {
        if (!track().byTime)
            return 0;
        return std::max(0, inMotion() ? track().moveTime : track().stopTime);
    }
    bool inMotion() const
    {
        return driving() ||
               (track().ignitionIsMoving && settings_.settings->hasIgnition(now_.sensed.lines)) ||
               (track().engineIsMoving && now_.sensed.engine);
    }

    void point(int second)
    {
        const qint64 time = segment_->from + second;
        const qint64 since = time - now_.time;
        if (since <= 0)
            return;
        const double km = driving() ? kmAt(second) : now_.km;
        const double metres = (km - now_.km) * 1000;
        if (driving() && ((track().leastDistanceOn && metres < track().leastDistance) ||
                          (track().leastTimeOn && since < track().leastTime)))
            return;
        if (period() > 0 && since >= period())
            record(time, inMotion() ? EventCode::Timer : EventCode::ParkedTimer);
        else if (driving() && track().byDistance && metres >= track().distance)
            record(time, EventCode::Distance);
        else if (driving() && turned(km, segment_->speedAt(second)))
            record(time, EventCode::Course);
    }

    bool turned(double km, double speed) const
    {
        const double angle = track().turn(speed);
        const double turn = std::abs(std::remainder(roadAt(km).course - now_.course, 360.0));
        return angle > 0 && turn >= angle;
    }

    // The next second in which something can happen to a vehicle that stands.
    int nextStanding(int second) const
    {
        int next = (second / kLookWhileStanding + 1) * kLookWhileStanding;
        const auto stop = [&](qint64 at) {
            if (at > second && at < next)
                next = static_cast<int>(at);
        };
        if (period() > 0)
            stop(now_.time + period() - segment_->from);
        if (!now_.stopTold)
            stop(now_.standsSince + track().stopAfter - segment_->from);
        stop(begins(*segment_, EventCode::IgnitionOn) ? kKeyAfter : kTagAfter);
        return next;
    }

    quint64 seed_;
    qint64 midnight_;
    const SettingsHistory& history_;
    SettingsHistory::Period settings_{};
    const Segment* segment_ = nullptr;
    std::vector<EventCode> events_;
    Trace now_;
    TrackedDay day_;
};

} // namespace

TrackedDay trackDay(quint64 seed, qint64 midnight, const DayPlan& plan, const Trace& begin,
                    const SettingsHistory& settings)
{
    Recorder recorder(seed, midnight, begin, settings);
    for (const Segment& segment : plan.segments)
        recorder.follow(segment);
    return recorder.result();
}

double outsideTemperature(quint64 seed, qint64 time)
{
    const double hours = static_cast<double>(time) / 3600;
    const double daily = 5 * std::sin((hours / 24 - 0.4) * 2 * 3.14159265);
    return daily - 6 + 18 * wave(mix(seed, WeatherSeed), hours / 60);
}

} // namespace tracker
