#pragma once

// What a file is, by its content alone.

#include <QByteArray>

namespace workbench::command {

enum class FileKind { configuration, telemetry, calibration, tachograph, unknown };

// By its first bytes, some thousand of them.
FileKind kindOf(const QByteArray& start);
// As programs read it: "configuration".
const char* nameOf(FileKind kind);

} // namespace workbench::command
