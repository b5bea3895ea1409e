#pragma once

// Texts of the times of a record: seconds since 1970-01-01 00:00 UTC. An offset shifts them, in seconds east
// of UTC.

#include "telemetry/text/ascii_text.h"

#include <QString>

namespace vlk {

// "15:00:00 01.02.2025".
void addClockAndDate(AsciiText& text, quint32 seconds, qint32 offset);

// "01.02.2025 9:00:00", as files and exports have it.
void addDateAndClock(AsciiText& text, quint32 seconds, qint32 offset);

// "15:00:00 01.02.2025 (UTC +3)", with the whole hours of the offset towards zero.
void addZonedTime(AsciiText& text, quint32 seconds, qint32 offset);

// These times as texts of their own, the first two in the zone of this machine.
QString localTimeText(quint32 seconds);
QString dateTimeText(quint32 seconds);
QString zonedTimeText(quint32 seconds, qint32 offset);

} // namespace vlk
