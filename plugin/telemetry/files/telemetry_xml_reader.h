#pragma once

// Reads telemetry in the XML form. It is no XML parser: it goes line by line and looks for what it knows, so
// that a damaged or half-written file gives all that is readable in it. A line that it does not know is
// passed over, an unknown element too, and a number that is none counts as 0. Nothing is an error.
//
// The zone and the model that the file names are not restored: records have the local zone.

#include "telemetry/files/telemetry_contents.h"

class QIODevice;

namespace vlk {

TelemetryContents readTelemetryXml(QIODevice& device);

} // namespace vlk
