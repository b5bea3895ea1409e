#pragma once

// What of its configuration the tracker measures and records by: track points, coordinates, input lines,
// supply and fuel sensors, temperature zones, accelerometer levels, the output line, the devices on the
// serial line and the Bluetooth sensors. Missing keys have the values that the tracker itself takes for them.
// Voltages are millivolts, times seconds, ways metres.

#include <QSettings>

#include <array>

namespace tracker {

class ConfigurationValues;

enum class Turns { None, ByAngle, BySpeed }; // by an angle that suits it

struct TrackRules
{
    bool startAndStop = false;
    int stopAfter = 0; // a shorter stop does not count
    bool speeding = false;
    int maxSpeed = 0; // km/h
    Turns turns = Turns::None;
    int angle = 0; // degrees
    bool byDistance = false;
    int distance = 0;
    bool byTime = false;
    int moveTime = 0; // 0 makes no points, neither does a stopTime of 0
    int stopTime = 0;
    bool ignitionIsMoving = false; // for moveTime
    bool engineIsMoving = false;
    // Points on the move that are too near to the last one are left out.
    bool leastDistanceOn = false;
    int leastDistance = 0;
    bool leastTimeOn = false;
    int leastTime = 0;

    // Degrees that make a point at a speed in km/h, 0 for none.
    double turn(double speed) const;

    bool operator==(const TrackRules&) const = default;
};

// Numbers as the file has them; a 2 is none of them.
enum class AtStops { Nothing = 0, Average = 1, Fix = 3 };

struct NavigationRules
{
    // Coordinates are thrown away, and those of stops put in order.
    bool filtered = false;
    int leastSatellites = 0;
    int mostHdop = 0;                   // hundredths
    int mostSpeed = 0;                  // km/h
    int mostGain = 0;                   // km/h within a second
    int mostShift = 0;                  // metres within two
    int rejectedAfterJump = 0;          // coordinates, one a second
    AtStops atStops = AtStops::Nothing; // while one of the two that count here says that the vehicle stands
    bool standsWithoutIgnition = false;
    bool standsWithoutMovement = false;
    std::array<bool, 5> systems{}; // GPS, GLONASS, and BeiDou last
    int elevation = 0;             // degrees above the horizon, from which on satellites count

    bool operator==(const NavigationRules&) const = default;
};

// In the order of the codes in kLineUses.
enum class LineUse { None, ClosedMinus, OpenMinus, ClosedPlus, OpenPlus, Analogue };

struct LineRules
{
    LineUse use = LineUse::None;
    bool ignition = false;
    bool restores = false; // the end of a trigger is an event too
    int low = 0;
    int high = 0;
    int change = 0; // of an analogue input that is an event
    bool stillOnly = false;
    bool filtered = false;
    int window = 0; // readings that an analogue input averages, 1 to 30

    // At this voltage, after it was or was not triggered: between the levels nothing changes.
    bool triggered(double millivolts, bool before) const;

    bool operator==(const LineRules&) const = default;
};

struct SupplyRules
{
    int line = 0; // 3: AIN3 is joined to the supply, else there is no sensor
    int alarm = 0;
    int restore = 0;
    int delay = 0;
    bool ownEngineLevel = false;
    int engineLevel = 0;
    int engineDelay = 0;       // of a start; a stop is told at once
    bool engineSilent = false; // starts and stops switch the output, but make no records

    bool used() const { return line == 3; }

    bool operator==(const SupplyRules&) const = default;
};

// Readings of the fuel level sensors on the serial line count while all of these hold; otherwise a record has
// the last one that counted.
struct FuelRules
{
    bool withIgnition = false;
    bool withEngine = false;
    bool withSupply = false;
    int low = 0; // mV: from here on the supply does not do, from `high` on it does again
    int high = 0;
    int delay = 0; // of the first reading

    bool operator==(const FuelRules&) const = default;
};

struct TemperatureZone
{
    int low = 0; // hundredths of a degree, as the next two
    int high = 0;
    int hysteresis = 0;
    bool filtered = false;

    bool operator==(const TemperatureZone&) const = default;
};

enum class OutputForm { Lasting, OnePulse, Periodic };

struct OutputRules
{
    bool switched = false; // for a general purpose, the only one that events switch
    std::array<int, 20> actions{};
    OutputForm form = OutputForm::Lasting;
    int onPeriod = 0;
    int offPeriod = 0;
    bool stops = false; // the periodic form, by itself
    int stopsAfter = 0;
    int delay = 0;         // between the event that switches it on and the line
    bool whenSafe = false; // it waits until the vehicle stands

    bool operator==(const OutputRules&) const = default;
};

// What owns the serial line, in the order of the codes in kLineOwners: these devices fill fields of a record.
enum class LineOwner { Other, Fuel, Tyres, Refrigerator, Tachograph, Counters };

struct SerialLineRules
{
    LineOwner owner = LineOwner::Other;
    std::array<bool, 16> sensorUsed{};
    std::array<int, 16> sensorAddress{};
    std::array<bool, 16> sensorFiltered{};
    std::array<int, 7> counterAddress{}; // 0 for none

    bool operator==(const SerialLineRules&) const = default;
};

// The four sensors that the tracker hears by Bluetooth. Of the universal sensor the tracker here tells
// nothing: it would have to send the raw packets that its rules take apart.
struct BluetoothRules
{
    enum Type { None, Fuel, Temperature };

    bool used = false;
    std::array<Type, 4> type{};
    std::array<int, 4> device{};      // in kBluetoothDevices, -1 for none that is around
    std::array<int, 4> fuel{};        // the fuel level, 1 to 16, that it is told as
    std::array<int, 4> temperature{}; // the same of the precise temperatures, 1 to 4

    // The device whose value stands in the record at this place, from 0 on; -1 for none.
    int deviceFor(Type wanted, int place) const;

    bool operator==(const BluetoothRules&) const = default;
};

struct WorkingSettings
{
    TrackRules track;
    NavigationRules navigation;
    std::array<LineRules, 3> lines;
    SupplyRules supply;
    FuelRules fuel;
    std::array<TemperatureZone, 4> zones;
    std::array<int, 4> shockLevels{}; // SH1 to SH3 hundredths of a percent, SH4 of a degree
    OutputRules output;
    SerialLineRules serial;
    BluetoothRules bluetooth;

    // Whether the ignition line is among these lines; bit n is IN n + 1.
    bool hasIgnition(int triggered) const;

    static WorkingSettings of(const ConfigurationValues& values);
    // Settings from the current group of a settings file.
    static WorkingSettings load(const QSettings& file);
    void save(QSettings& file) const;
    bool operator==(const WorkingSettings&) const = default;
};

} // namespace tracker
