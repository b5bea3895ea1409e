#pragma once

// The records of telemetry files, in batches, as often as they are asked for from the beginning. Standard
// input is kept in a temporary file, and records that are merged wait in another one, so that memory does not
// grow with the files.

#include "command/convert_inputs.h"
#include "telemetry/files/telemetry_reader.h"

#include <functional>
#include <memory>

namespace workbench::command {

// Records of one file; merged ones of files that read user parameters alike.
struct RecordBatch
{
    std::shared_ptr<const vlk::TelemetryOrigin> origin;
    vlk::RecordStore records;
    QString tracker{}; // as their file itself tells it
};

// What is told while files are read for the first time.
struct SourceListener
{
    // Something that was found wrong in a file of that size.
    std::function<void(const File& file, const vlk::FileDamage& damage, qint64 size)> damage;
    // A file could not be opened, or not read to its end.
    std::function<void(const File& file, const QString& reason)> fault;
    // What a file tells of its tracker, and that tracker's number.
    std::function<void(const File& file, const vlk::TelemetryOrigin& origin, const QString& tracker)> origin;
    // Finishes it for what is written; asked whenever a file is read.
    std::function<void(const File& file, vlk::TelemetryOrigin& origin)> complete;
};

class RecordSource
{
public:
    virtual ~RecordSource() = default;

    virtual void rewind() = 0;
    virtual std::optional<RecordBatch> next() = 0;
    // Whether they come a second time about as quickly as from memory.
    virtual bool isQuickAgain() const { return false; }

protected:
    RecordSource() = default;
    Q_DISABLE_COPY_MOVE(RecordSource)
};

// One file after the other.
std::unique_ptr<RecordSource> recordsOf(const std::vector<TelemetryInput>& inputs, SourceListener listener);

// The records, which come out of a temporary file when they are asked for again, where it can be written.
std::unique_ptr<RecordSource> keptForAgain(RecordSource& records);

// Sorted by time; of those with the same number and time the first. Records of files that tell different
// trackers are all kept, and `trackers` gets those; null where all are of one, whatever files tell. None,
// with a reason, where the temporary file cannot be written.
std::unique_ptr<RecordSource> mergedRecords(RecordSource& records, QStringList* trackers, QString* reason);

} // namespace workbench::command
