#pragma once

// How the windows for stored telemetry read a file.

#include "telemetry/files/telemetry_contents.h"

namespace vlk {

// Records and packets of a file of either form; none if it cannot be read or is no file. The log
// (vlk.telemetry) says when there is nothing to show; that of the readers (vlk.files) what is damaged, and
// where.
TelemetryContents readStoredFile(const QString& path);

} // namespace vlk
