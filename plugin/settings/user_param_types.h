#pragma once

// The kinds of value that devices supply as user parameters. The numbers are a contract; what belongs to them
// stands in absent/params/user_param_kinds.h.

#include <QMetaType>

enum class userParamType : int {
    fuelFlow = 0,
    humidity = 1,
    link = 2,
    light = 3,
    pressure = 4,
    signalLevel = 5,
    state = 6,
    battery = 7,
    workTime = 8,
    tilt = 12,
    tiltX = 13,
    tiltY = 14,
    tiltZ = 15,
    universal = 16,
    events = 17,
    accelerationX = 19,
    accelerationY = 20,
    accelerationZ = 21,
    magnet = 22,
};

Q_DECLARE_METATYPE(userParamType)
