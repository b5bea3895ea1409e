#pragma once

// What the vehicle's sensors and buses say at a moment, in the units of the telemetry fields. Records and
// live answers read the same values. Sensors that the vehicle lacks give the value that says so.

#include "tracker/bluetooth_devices.h"
#include "tracker/moment.h"

namespace tracker {

class Vehicle
{
public:
    Vehicle(const Moment& moment, const Controls& controls, const Links& links = {})
        : m(moment), c(controls), links(links)
    {
    }

    const Moment m;
    const Controls c;
    const Links links;

    bool driving() const { return m.activity == Activity::Driving; }
    bool running() const { return m.ignition(); }

    double state() const;
    double module1() const;
    double module2() const;
    double connection() const;
    double gsmLevel() const;

    double navigationState() const;
    double mileage() const { return m.at.km + c.mileageShift; } // km
    double satellites(int system) const;                        // in the order of the satellite fields
    double dilution(int kind) const;                            // 0.1, horizontal and of position
    double cell(int station) const;
    double areaCode() const;
    double stationLevel(int station) const; // dBm

    double supply() const; // mV
    double backupSupply() const;
    double line(int index) const; // IN1 to IN3, mV
    // Bit n is set while IN n + 1 is triggered.
    int triggeredLines(const WorkingSettings& settings) const;
    double inputs() const;
    double outputs(int group) const;
    // By the supply when the tracker has a sensor on it, by the ignition line otherwise; without the delay
    // after which the tracker believes it.
    bool engineRuns(const WorkingSettings& settings) const;
    double frequency(int index) const;

    // What is in a tank into which nobody has poured, in litres.
    double fuelLeft(std::size_t tank) const;
    double fuelSensor(int sensor) const; // D1 to D6, 0 to 4095
    // The same, or the last one that counted.
    double recordedFuel(int sensor) const;
    // What a filter takes away from it.
    double slosh(int sensor) const;
    // The sensor in a tank, 0 to 5, that stands in the record as this fuel level, and whether its readings
    // are averaged; -1 where there is none. On the serial line the one that answers to the address of the
    // row, where the sensors have the addresses 1 to 6; else one that is heard by Bluetooth.
    struct FuelSource
    {
        int sensor = -1;
        bool filtered = false;
    };
    FuelSource fuelSource(int row) const;
    // Whether the tracker is set to this device on its serial line.
    bool isOnLine(LineOwner device) const;
    // Of the counters with addresses of their own: who has entered on this trip; 255 where there is none.
    double passengers(int counter) const;
    double fuelPercent() const; // with the flag that says percent
    double flow() const;        // 0.1 litre an hour

    double temperature(int sensor) const; // degrees, -128 without a sensor
    // Of the devices that are heard by Bluetooth.
    double fineTemperature(int place) const; // 0.05 degree
    double humidity(int place) const;        // 0.5 percent
    double coolant() const;                  // degrees

    double engineTurns() const;
    double engineLoad() const; // percent
    double gasPedal() const;   // percent
    double brakePedal() const;
    double axleLoad(int axle) const;      // kg
    double tyrePressure(int wheel) const; // 0.1 bar
    double tyreTemperature(int wheel) const;

    double lateral() const;  // g
    double shock() const;    // percent of the sensors SH1 and SH2
    double movement() const; // percent of SH3
    double tilt() const;     // degrees, SH4
    double shockState() const;
    double speedThresholds() const; // a bit for each exceeded
    double thresholds(double g) const;

    double tachographState() const;
    double refrigeratorRuns() const;
    double refrigeratorTemperature(int zone) const; // 0.01 degree

    // Between two bounds, changing smoothly within so many seconds; `what` tells curves apart.
    double drift(int what, double low, double high, double seconds) const;

private:
    double parkedSeconds() const;
    bool doorOpen() const;
    double hit() const; // percent
    double tankAtLine() const;
    double steadyTemperature(int sensor) const;
    // The Bluetooth device that stands in the record at this place; null for none.
    const BluetoothDevice* heard(BluetoothRules::Type type, int place) const;
};

} // namespace tracker
