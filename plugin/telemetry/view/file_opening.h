#pragma once

// Reads a stored file for a window: at once where that is quick, else in slices from the event loop, with
// progress and Cancel.

#include "telemetry/view/stored_file.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace vlk {

class WorkProgress;

class FileOpening : public QObject
{
    Q_OBJECT

public:
    explicit FileOpening(WorkProgress* progress);

    // In place of what is being read.
    void start(const QString& path, TelemetryReading reading = TelemetryReading::AsTold);
    // Gives it up without a word.
    void stop();

Q_SIGNALS:
    // It is whole; where the reading took several turns, opened() comes in a later one than this.
    void wholeRead(const std::shared_ptr<vlk::TelemetryContents>& contents);
    void opened(const std::shared_ptr<vlk::TelemetryContents>& contents);
    void cancelled();

private:
    void goOn(int milliseconds);
    void take();
    void end();

    WorkProgress* progress_;
    std::unique_ptr<StoredFile> file_;
    bool isRead_ = false;                         // the file is read, and that is not yet told
    std::shared_ptr<TelemetryContents> contents_; // not yet told, once they are taken from the file
    QTimer slices_;
};

} // namespace vlk
