#pragma once

// What kind of file the user chose or dropped, by its content.

#include <QString>

// A preset is a configuration that says so: a few settings for others to take.
enum class StoredFile { Configuration, Preset, Telemetry, Calibration, Unknown };

namespace workbench {

// Reads the beginning of the file; the binary telemetry form is known by its extension.
StoredFile storedFileKind(const QString& path);

} // namespace workbench
