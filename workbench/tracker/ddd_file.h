#pragma once

// Made-up tachograph files in DDD form: blocks of a tag, a kind (0 data, 1 signature), a length and so many
// bytes, all numbers big-endian, as a driver's card is stored.

#include "tracker/vehicle.h"

#include <QByteArray>

namespace tracker {

struct DddFile
{
    QByteArray name;    // as the tachograph proposes it
    QByteArray content; // empty when there is no such file
};

// Codes 0 to 4 are files of the vehicle (all; the day of the parameter; events; speeds; technical data), 5 is
// the card whose slot, 1 or 2, stands in the parameter's lowest byte. Slot 2 is empty.
DddFile makeDddFile(int code, quint32 parameter, const Vehicle& vehicle);

} // namespace tracker
