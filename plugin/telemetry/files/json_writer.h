#pragma once

// An object of JSON a line for each record: its number, then its texts by the names of items or, raw, the
// numbers of the XML form by the names of elements. A packet has its entries under "Dynamic".

#include "telemetry/files/export_form.h"

namespace vlk {

std::unique_ptr<ExportWriter> jsonWriter(const ExportOptions& options);

// The entries of a packet as a list of JSON; each with its type, its size and its value.
QByteArray entriesAsJson(const ExtraPacket& packet);

} // namespace vlk
