#pragma once

// What a file is, by its content alone.

#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace workbench::command {

enum class FileKind { Configuration, Telemetry, Calibration, Tachograph, Unknown };

// How much of its beginning is enough to know it.
inline constexpr qint64 kBeginning = 4096;

FileKind kindOf(const QByteArray& start);
// The kind of a file: one that has lost its beginning is known by its records, where its name says that it
// holds some.
FileKind kindOf(QIODevice& device, const QString& name);
// Nothing but blanks up to its end.
inline bool isBlank(const QByteArray& start)
{
    return start.size() < kBeginning && start.trimmed().isEmpty();
}

// As programs read it: "configuration".
const char* nameOf(FileKind kind);
// The key of its text.
const char* wordOf(FileKind kind);

// The attribute `model` of an XML file's root; null where it has none.
QString modelOf(const QByteArray& start);

} // namespace workbench::command
