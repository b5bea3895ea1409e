#pragma once

// One value that a form offers for the free slots of a record. Forms offer and withdraw it by its four parts.

#include <QString>

namespace vlk {

// The code of the values that come over Modbus. Those of the other forms stand in user_param_kinds.h.
inline constexpr char kModbusCode[] = "MB";

struct UserParam
{
    QString code; // "MB"
    QString name; // empty: nothing is offered
    QString third;
    int bytes = 0;

    // "FS, Fuel flow 3", or with a third part "MB, MB3,  7,  1f, 2 bytes, unsigned".
    QString display() const;

    friend bool operator==(const UserParam& a, const UserParam& b)
    {
        return a.code == b.code && a.name == b.name && a.third == b.third && a.bytes == b.bytes;
    }
};

} // namespace vlk
