#pragma once

// Puts the records of a period, as they came from the tracker, into a file.

#include "telemetry/files/telemetry_pages.h"

#include <QByteArray>
#include <QDateTime>

#include <vector>

class QIODevice;

namespace vlk {

// Records and extra packets, each from its type byte on.
using RecordBytes = std::vector<QByteArray>;

// Writes one of the forms that such a file can have; false if a write failed.
using PeriodWriter = bool (*)(QIODevice& device, const TelemetryPages& pages, const TelemetryOrigin& origin);

// "Van 7 2025-02-01 14-00 - 2025-02-01 15-00": the name, without a suffix, that is proposed for the file of a
// vehicle's period. The times are shown as they are given.
QString periodFileName(const QString& vehicle, const QDateTime& first, const QDateTime& last);

// True when the file at `path` now holds the records. Otherwise it holds what it held before, and the log of
// failed saves (base/save_log.h) says why. Times are shown in the zone of `origin`.
bool writePeriod(const QString& path, PeriodWriter write, const RecordBytes& records,
                 const TelemetryOrigin& origin);

} // namespace vlk
