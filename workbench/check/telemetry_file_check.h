#pragma once

// Whether a stored telemetry file has something to show: at least one record that is whole. Both forms are
// known by their content, XML by its line <TMI, binary by its first bytes. Reads as far as the first whole
// record, and 16 MB at most: of a file that holds none by then who reads all of it finds out.

#include <QString>

#include <optional>

namespace workbench {

struct TelemetryFileProblem
{
    enum Kind {
        Unreadable,
        Empty,
        CutShort, // the bytes end within the first record
        Damaged,  // there are records, and none of them is whole
        NoRecord
    };

    Kind kind;
    qint64 bytes;   // that there are
    QString reason; // the system's words, when it is unreadable
};

// None for a file with a whole record.
std::optional<TelemetryFileProblem> checkTelemetryFile(const QString& path);

} // namespace workbench
