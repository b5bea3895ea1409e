#pragma once

// Puts the records of a period, as they came from the tracker, into a file.

#include "telemetry/files/telemetry_file.h"

#include <QByteArray>

#include <vector>

namespace vlk {

// Records and extra packets, each from its type byte on.
using RecordBytes = std::vector<QByteArray>;

// True when the file at `path` now holds the records. Otherwise it holds what it held before, and the log
// (vlk.telemetry) tells of it. Times are shown in the zone of `origin`, events in the words of the host.
bool writePeriod(const QString& path, TelemetryForm form, const RecordBytes& records,
                 const TelemetryOrigin& origin);

} // namespace vlk
