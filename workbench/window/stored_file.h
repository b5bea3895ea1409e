#pragma once

// What kind of file the user chose or dropped, by its content.

#include <QString>

enum class StoredFile { Configuration, Telemetry, Unknown };

namespace workbench {

// Reads the beginning of the file; the binary telemetry form is known by its extension.
StoredFile storedFileKind(const QString& path);

} // namespace workbench
