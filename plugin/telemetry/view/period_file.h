#pragma once

// The records of a period, as they came from the tracker, and the name of a file for them.

#include "telemetry/files/telemetry_contents.h"

#include <QByteArray>
#include <QDateTime>

#include <vector>

namespace vlk {

// Records and extra packets, each from its type byte on.
using RecordBytes = std::vector<QByteArray>;

// "Van 7 2025-02-01 14-00 - 2025-02-01 15-00": the name, without a suffix, that is proposed for the file of a
// vehicle's period. The times are shown as they are given.
QString periodFileName(const QString& vehicle, const QDateTime& first, const QDateTime& last);

// The vehicle of such a name: what stands before the period, the whole name where there is none.
QString vehicleOfFile(const QString& path);

// A period of records as they came. Times are shown in the zone of `origin`.
TelemetryContents periodOf(const RecordBytes& records, const TelemetryOrigin& origin);

} // namespace vlk
