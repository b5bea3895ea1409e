#pragma once

// Writes records to a file, at once where that is quick, else in slices from the event loop, with progress
// and Cancel. Until all is written the file is what it was before.

#include "telemetry/files/export_form.h"

#include <QObject>
#include <QSaveFile>
#include <QTimer>

#include <memory>

namespace vlk {

class WorkProgress;

class RecordsExport : public QObject
{
    Q_OBJECT

public:
    explicit RecordsExport(WorkProgress* progress);

    // In place of what is being written. The contents are kept as long as it takes.
    void start(const QString& path, const std::shared_ptr<const TelemetryContents>& contents,
               std::vector<int> records, ExportForm form, const ExportOptions& options);

    bool isRunning() const { return work_ != nullptr; }
    // What is not written to the end is removed.
    void stop();

Q_SIGNALS:
    // So many of the records have no place in the form.
    void written(const QString& path, qint64 withoutPlace);
    // Why, as the system words it.
    void failed(const QString& path, const QString& reason);
    void cancelled();

private:
    void goOn(int milliseconds);

    WorkProgress* progress_;
    std::shared_ptr<const TelemetryContents> contents_;
    std::unique_ptr<QSaveFile> file_;
    std::unique_ptr<RecordExport> work_;
    QTimer slices_;
};

} // namespace vlk
