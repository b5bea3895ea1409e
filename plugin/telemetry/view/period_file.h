#pragma once

// Puts the records of a period, as they came from the tracker, into a file.

#include "telemetry/files/telemetry_file.h"

#include <QByteArray>
#include <QDateTime>

#include <vector>

namespace vlk {

// Records and extra packets, each from its type byte on.
using RecordBytes = std::vector<QByteArray>;

// "Van 7 2025-02-01 14-00 - 2025-02-01 15-00": the name, without a suffix, that is proposed for the file of a
// vehicle's period. The times are shown as they are given.
QString periodFileName(const QString& vehicle, const QDateTime& first, const QDateTime& last);

// saveTelemetryFile() for records as they came. Times are shown in the zone of `origin`.
bool writePeriod(const QString& path, TelemetryForm form, const RecordBytes& records,
                 const TelemetryOrigin& origin, const EventText& eventText);

} // namespace vlk
