#pragma once

// How the windows for stored telemetry read a file: at one go, or in portions.

#include "telemetry/files/telemetry_reader.h"

#include <QFile>

#include <optional>

namespace vlk {

class StoredFile
{
public:
    explicit StoredFile(const QString& path, TelemetryReading reading = TelemetryReading::AsTold);

    // True when all is read.
    bool readFor(int milliseconds) { return !reader_ || reader_->readFor(milliseconds); }
    double share() const { return reader_ ? reader_->share() : 1; }
    // Records and packets of a file of either form; none if it cannot be read or is no file. The log
    // (vlk.telemetry) says when there is nothing to show; that of the readers (vlk.files) what is damaged,
    // and where.
    TelemetryContents take();

private:
    QFile file_;
    std::optional<TelemetryReader> reader_;
};

} // namespace vlk
