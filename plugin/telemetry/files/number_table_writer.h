#pragma once

// The tables of numbers: CSV and text with tabs, in UTF-8. A column an element, its heading the name of the
// element and the unit; the whole of an archive has every column, the tracker in front. Packets have their
// entries in the last column.

#include "telemetry/files/export_form.h"

namespace vlk {

std::unique_ptr<ExportWriter> numberTableWriter(ExportForm form, const ExportAhead& ahead,
                                                const ExportOptions& options);

} // namespace vlk
