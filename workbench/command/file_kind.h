#pragma once

// What a file is, by its content alone.

#include <QString>

namespace workbench::command {

enum class FileKind { configuration, telemetry, calibration, tachograph, unknown };

// By its first bytes, some thousand of them.
FileKind kindOf(const QByteArray& start);
// As programs read it: "configuration".
const char* nameOf(FileKind kind);
// The key of its text.
const char* wordOf(FileKind kind);

// The attribute `model` of an XML file's root; null where it has none.
QString modelOf(const QByteArray& start);

} // namespace workbench::command
