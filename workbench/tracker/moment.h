#pragma once

// Everything that holds for the vehicle at one second: what a record of that second is made from.

#include "tracker/day_plan.h"
#include "tracker/navigation.h"
#include "tracker/sensor_states.h"
#include "tracker/settings_history.h"
#include "tracker/tank_pours.h"

#include <array>
#include <limits>

namespace tracker {

// A record holds fields by a mask; the other two are packets with a key or a tag in them.
enum class RecordKind { Telemetry, Key, Tag };

struct Moment
{
    qint64 time = 0; // Unix seconds
    quint32 number = 0;
    quint16 code = 0;
    RecordKind kind = RecordKind::Telemetry;

    Activity activity = Activity::Parked;
    int trip = 0;            // of the day
    double speed = 0;        // km/h
    double acceleration = 0; // m/s2
    int speedLimit = 0;      // km/h
    RoadPoint road{};        // where the last coordinate was taken
    bool fix = true;
    qint64 fixTime = 0;
    Satellites satellites;
    Odometers at;
    double outside = 0; // degrees Celsius

    // Since the record before.
    double segmentKm = 0;
    int segmentSeconds = 0;
    int movingSeconds = 0;

    SensorStates sensed; // when the tracker measured last
    SettingsHistory::Settings settings;

    quint64 seed = 0; // for what varies at random around these values

    // The key is turned; what the tracker sees of it depends on its lines.
    bool ignition() const { return activity == Activity::Idling || activity == Activity::Driving; }
};

// What a user has set; it holds from the second on in which it was set.
struct Controls
{
    bool guard = false;
    quint16 outputs = 0;     // bit n is output n + 1
    double mileageShift = 0; // km, what a set mileage differs from the driven
    TankValues fuelHeights;  // in the tanks into which a user has poured
};

// Later than any record.
inline constexpr qint64 kNoTime = std::numeric_limits<qint64>::max();

// What the tracker is connected to.
struct Links
{
    qint64 usbSince = kNoTime; // Unix seconds
    std::array<bool, 3> servers{};
    int connectsEvery = 0; // seconds, to the servers; 0 for always
    bool service = true;   // of the manufacturer
    bool bluetooth = true;
};

} // namespace tracker
