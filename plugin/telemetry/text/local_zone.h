#pragma once

// The zone of this machine as it is when the object is made. That takes a look at the file of the zone, while
// a time afterwards takes none: who shows many times makes one zone for them.

#include <QtGlobal>

namespace vlk {

class LocalZone
{
public:
    LocalZone();

    // Seconds east of UTC at that moment, which counts in seconds since 1970-01-01 00:00 UTC.
    qint32 offsetAt(quint32 seconds) const;
    qint32 offsetNow() const;
};

} // namespace vlk
