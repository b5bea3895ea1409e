#pragma once

// Writes telemetry in the XML form: a line an element, in windows-1251, ending in CR LF. Titles stand in it
// as they are, without escapes. A record gives the elements that its mask selects, and number, code and time
// always.

#include "telemetry/files/export_form.h"

namespace vlk {

std::unique_ptr<ExportWriter> xmlWriter(const ExportAhead& ahead, const TelemetryOrigin& origin);

// False if a write failed.
bool writeTelemetryXml(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin);

} // namespace vlk
