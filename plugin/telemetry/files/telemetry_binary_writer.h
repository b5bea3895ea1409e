#pragma once

// Writes telemetry in the binary form, which is handed on to a server: the records as the tracker sent them,
// with checksums. A record that was read from an XML file, of which the bytes of the tracker are not known,
// is packed again from its values.

#include "telemetry/files/export_form.h"

namespace vlk {

// With no records ahead it writes nothing at all.
std::unique_ptr<ExportWriter> binaryWriter(const ExportAhead& ahead, const TelemetryOrigin& origin);

// The checksum goes on over these records.
std::uint32_t binaryCrc(std::uint32_t before, const RecordStore& store, std::span<const int> records);

// False if a write failed. No pages write nothing at all.
bool writeTelemetryBinary(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin);

} // namespace vlk
