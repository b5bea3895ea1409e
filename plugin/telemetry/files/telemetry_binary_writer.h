#pragma once

// Writes telemetry in the binary form, which is handed on to a server: the records as the tracker sent them,
// with checksums. A record that was read from an XML file, of which the bytes of the tracker are not known,
// is packed again from its values.

#include "telemetry/files/telemetry_contents.h"

class QIODevice;

namespace vlk {

// False if a write failed. No pages write nothing at all.
bool writeTelemetryBinary(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin);

} // namespace vlk
