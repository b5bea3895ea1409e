#pragma once

// Saves files of telemetry by their names.

#include "telemetry/files/telemetry_csv_writer.h"

namespace vlk {

enum class TelemetryForm { Xml, Csv, Binary };

// True when the file at `path` now holds the records in that form. Otherwise, on a full disk say, it holds
// what it held before, and the log of failed saves (base/save_log.h) says why. Only the CSV form asks for the
// names of events.
bool saveTelemetryFile(const QString& path, TelemetryForm form, const RecordStore& records,
                       const TelemetryOrigin& origin, const EventText& eventText = {});

} // namespace vlk
