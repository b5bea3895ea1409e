#pragma once

// Reads telemetry in the binary form. A damaged file loses at most its damaged records: where the lengths do
// not lead on, the reader looks for the next place at which a whole record stands, one whose length agrees
// with its mask. What it found wrong it tells.

#include "telemetry/files/telemetry_contents.h"

class QIODevice;

namespace vlk {

// Reads from the present position of the device, which counts as 0. An empty device is no damage.
TelemetryContents readTelemetryBinary(QIODevice& device);

// Whether a file that begins with these bytes, 5 at least, says that it has this form.
bool looksBinary(std::span<const std::uint8_t> start);

// For the log.
QString text(const FileDamage& damage);

} // namespace vlk
