#pragma once

// The states of lines and sensors as the tracker saw them last; between two levels they stay as they were.

#include "tracker/working_settings.h"

#include <array>

namespace tracker {

struct SensorStates
{
    quint8 lines = 0;             // bit n is IN n + 1
    quint8 shocks = 0;            // bit n is SH n + 1
    std::array<qint8, 4> zones{}; // -1 below the zone, 1 above it
    bool supplyLow = false;
    bool engine = false;
    // Unix seconds since the voltage is low, and since it is that of a running engine; 0 while it is not.
    qint64 supplyLowSince = 0;
    qint64 engineSince = 0;
    // Since when fuel level sensors have what their readings wait for, and whether the supply does.
    qint64 fuelSince = 0;
    bool fuelSupplied = true;
    bool fuelCounts = true;
    double fuelRead = -1;   // litres in the tanks at the last reading that counted; -1 before the first one
    int analogue = -1;      // mV at the last event of IN3, -1 before the first measurement
    bool output = false;    // O1 switched on by an event
    qint64 outputSince = 0; // later than any time while it waits for the vehicle to stand

    // The movement sensor SH3.
    bool moved() const { return shocks >> 2 & 1; }
    // What O1 gives then: the form of the signal.
    bool outputNow(const OutputRules& rules, qint64 time) const;
};

} // namespace tracker
