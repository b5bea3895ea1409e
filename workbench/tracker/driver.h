#pragma once

// Who drives: the driver changes from day to day, and with him the key, the card and the names in the
// tachograph.

#include "tracker/moment.h"

namespace tracker {

struct Driver
{
    const char* surname;
    const char* firstName;
    const char* card; // number of the tachograph card, 16 characters
    quint64 key;      // of the touch key, six bytes
};

const Driver& driverOf(const Moment& moment);
// The number of the tag on the load, five bytes; it changes with the trip.
quint64 tagNumber(const Moment& moment);

} // namespace tracker
