#pragma once

// The records of telemetry files, in batches, as often as they are asked for from the beginning. Standard
// input is kept in a temporary file, and records that are merged wait in another one, so that memory does not
// grow with the files.

#include "command/file_walk.h"
#include "telemetry/files/telemetry_reader.h"

#include <QTemporaryFile>

#include <functional>
#include <memory>

namespace workbench::command {

// Records of one file; merged ones of files that read user parameters alike.
struct RecordBatch
{
    std::shared_ptr<const vlk::TelemetryOrigin> origin;
    vlk::RecordStore records;
};

// A file that is open, at its beginning.
struct TelemetryInput
{
    File file;
    std::unique_ptr<QFile> device;
};

class RecordSource
{
public:
    // What was found wrong in a file of that size.
    using TellDamage = std::function<void(const File& file, const vlk::FileDamage& damage, qint64 size)>;

    virtual ~RecordSource() = default;

    virtual void rewind() = 0;
    virtual std::optional<RecordBatch> next() = 0;

protected:
    RecordSource() = default;
    Q_DISABLE_COPY_MOVE(RecordSource)
};

// One file after the other. Damages are told when their file is read for the first time. The origin of a file
// is finished by `complete`.
std::unique_ptr<RecordSource>
recordsOf(const std::vector<TelemetryInput>& inputs, RecordSource::TellDamage tellDamage,
          std::function<void(const File& file, vlk::TelemetryOrigin& origin)> complete);

// Sorted by time; of those with the same number and time the first. None, with a reason, where the temporary
// file cannot be written.
std::unique_ptr<RecordSource> mergedRecords(RecordSource& records, QString* reason);

} // namespace workbench::command
