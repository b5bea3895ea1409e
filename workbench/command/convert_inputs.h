#pragma once

// The files of a call that are telemetry. Of the others that are named themselves it complains.

#include "command/each_file.h"

#include <QFile>

#include <memory>

namespace workbench::command {

struct TelemetryInput
{
    File file;
    std::unique_ptr<QFile>
        device{}; // of standard input, which is kept; else the file is opened when it is read
    bool isXml = false;
};

class TelemetryInputs
{
public:
    explicit TelemetryInputs(const QStringList& names);

    const std::vector<TelemetryInput>& files() const { return files_; }
    int status() const { return status_; }

private:
    void take(const File& file);
    void add(const File& file, std::unique_ptr<QFile> device, bool isXml);
    void refuse(const File& file, const QString& reason);

    FolderTally folders_;
    std::vector<TelemetryInput> files_;
    int status_ = Nothing;
};

} // namespace workbench::command
