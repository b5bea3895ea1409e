#pragma once

// What of its configuration the tracker measures and records by: track points, coordinates, input lines,
// supply and fuel sensors, temperature zones, accelerometer levels, the output line, the devices on the
// serial line and the Bluetooth sensors. Missing keys have the values that the tracker itself takes for them.
// Voltages are millivolts, times seconds, ways metres.

#include <QSettings>

#include <array>

namespace tracker {

class ConfigurationValues;

struct TrackRules
{
    int startAndStop = 0;
    int stopAfter = 0; // a shorter stop does not count
    int speeding = 0;
    int maxSpeed = 0;  // km/h
    int angleMode = 0; // 1 by `angle`, 2 by an angle that suits the speed
    int angle = 0;     // degrees
    int byDistance = 0;
    int distance = 0;
    int byTime = 0;
    int moveTime = 0; // 0 makes no points, neither does a stopTime of 0
    int stopTime = 0;
    int ignitionIsMoving = 0; // for moveTime
    int engineIsMoving = 0;
    // Points on the move that are too near to the last one are left out.
    int leastDistanceOn = 0;
    int leastDistance = 0;
    int leastTimeOn = 0;
    int leastTime = 0;

    // Degrees that make a point at a speed in km/h, 0 for none.
    double turn(double speed) const;
};

// As the file has them; a 2 is none of them.
enum class AtStops { Nothing = 0, Average = 1, Fix = 3 };

struct NavigationRules
{
    // Coordinates are thrown away, and those of stops put in order.
    int filtered = 0;
    int leastSatellites = 0;
    int mostHdop = 0;          // hundredths
    int mostSpeed = 0;         // km/h
    int mostGain = 0;          // km/h within a second
    int mostShift = 0;         // metres within two
    int rejectedAfterJump = 0; // coordinates, one a second
    int atStops = 0;           // AtStops, while one of the two that count here says that the vehicle stands
    int standsWithoutIgnition = 0;
    int standsWithoutMovement = 0;
    std::array<int, 5> systems{}; // GPS, GLONASS, and BeiDou last
    int elevation = 0;            // degrees above the horizon, from which on satellites count
};

// In the order of the codes in lineUses.
enum class LineUse { None, ClosedMinus, OpenMinus, ClosedPlus, OpenPlus, Analogue };

struct LineRules
{
    int use = 0; // LineUse
    int ignition = 0;
    int restores = 0; // the end of a trigger is an event too
    int low = 0;
    int high = 0;
    int change = 0; // of an analogue input that is an event
    int stillOnly = 0;
    int filtered = 0;
    int window = 0; // readings that an analogue input averages, 1 to 30

    bool is(LineUse wanted) const { return use == static_cast<int>(wanted); }
    // At this voltage, after it was or was not triggered: between the levels nothing changes.
    bool triggered(double millivolts, bool before) const;
};

struct SupplyRules
{
    int line = 0; // 3: AIN3 is joined to the supply, else there is no sensor
    int alarm = 0;
    int restore = 0;
    int delay = 0;
    int ownEngineLevel = 0;
    int engineLevel = 0;
    int engineDelay = 0;  // of a start; a stop is told at once
    int engineSilent = 0; // starts and stops switch the output, but make no records

    bool used() const { return line == 3; }
};

// Readings of the fuel level sensors on the serial line count while all of these hold; otherwise a record has
// the last one that counted.
struct FuelRules
{
    int withIgnition = 0;
    int withEngine = 0;
    int withSupply = 0;
    int low = 0; // mV: from here on the supply does not do, from `high` on it does again
    int high = 0;
    int delay = 0; // of the first reading
};

struct TemperatureZone
{
    int low = 0; // hundredths of a degree, as the next two
    int high = 0;
    int hysteresis = 0;
    int filtered = 0;
};

struct OutputRules
{
    int use = 0; // 1 for a general purpose, the only one that events switch
    std::array<int, 20> actions{};
    int form = 0; // 0 lasting, 1 one pulse, 2 periodic
    int onPeriod = 0;
    int offPeriod = 0;
    int stops = 0; // the periodic form, by itself
    int stopsAfter = 0;
    int delay = 0;    // between the event that switches it on and the line
    int whenSafe = 0; // it waits until the vehicle stands
};

// What owns the serial line, in the order of the codes in lineOwners: these devices fill fields of a record.
enum class LineOwner { Other, Fuel, Tyres, Refrigerator, Tachograph, Counters };

struct SerialLineRules
{
    int owner = 0; // LineOwner
    std::array<int, 16> sensorUsed{};
    std::array<int, 16> sensorAddress{};
    std::array<int, 16> sensorFiltered{};
    std::array<int, 7> counterAddress{}; // 0 for none

    bool is(LineOwner wanted) const { return owner == static_cast<int>(wanted); }
};

// The four sensors that the tracker hears by Bluetooth. Of the universal sensor the tracker here tells
// nothing: it would have to send the raw packets that its rules take apart.
struct BluetoothRules
{
    enum Type { None, Fuel, Temperature };

    int used = 0;
    std::array<int, 4> type{};
    std::array<int, 4> device{};      // in bluetoothDevices, -1 for none that is around
    std::array<int, 4> fuel{};        // the fuel level, 1 to 16, that it is told as
    std::array<int, 4> temperature{}; // the same of the precise temperatures, 1 to 4

    // The device whose value stands in the record at this place, from 0 on; -1 for none.
    int deviceFor(Type wanted, int place) const;
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
    // The same in the current group of a settings file.
    static WorkingSettings load(const QSettings& file);
    void save(QSettings& file) const;
    bool operator==(const WorkingSettings& other) const;
};

} // namespace tracker
