#pragma once

// The track of the records in the forms of maps (track_points.h tells which of them are its points). A gap
// begins a new segment. GPX and KML have the time and the height of each point; GeoJSON, which has no place
// for times, tells when a segment begins and ends, and ends one at the date line.

#include "telemetry/files/export_form.h"

namespace vlk {

std::unique_ptr<ExportWriter> gpxWriter(const ExportOptions& options);
std::unique_ptr<ExportWriter> kmlWriter(const ExportOptions& options);
std::unique_ptr<ExportWriter> geoJsonWriter(const ExportOptions& options);

} // namespace vlk
