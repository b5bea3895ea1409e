#pragma once

// The table of texts: a row of headings and a row a record, cells in the form ="text"
// (telemetry_csv_writer.h).

#include "telemetry/files/export_form.h"

namespace vlk {

std::unique_ptr<ExportWriter> textTableWriter(const ExportAhead& ahead, const ExportOptions& options);

} // namespace vlk
