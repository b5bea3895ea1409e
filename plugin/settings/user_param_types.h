#pragma once

// The kinds of value that devices supply as user parameters. The numbers are a contract; what belongs to them
// stands in absent/params/user_param_kinds.h.

#include <QMetaType>

enum class userParamType : int {
    FuelFlow = 0,
    Humidity = 1,
    Link = 2,
    Light = 3,
    Pressure = 4,
    SignalLevel = 5,
    State = 6,
    Battery = 7,
    WorkTime = 8,
    Tilt = 12,
    TiltX = 13,
    TiltY = 14,
    TiltZ = 15,
    Universal = 16,
    Events = 17,
    AccelerationX = 19,
    AccelerationY = 20,
    AccelerationZ = 21,
    Magnet = 22,
};

Q_DECLARE_METATYPE(userParamType)
