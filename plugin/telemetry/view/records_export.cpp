#include "telemetry/view/records_export.h"

#include "telemetry/shown/work_progress.h"

namespace vlk {

RecordsExport::RecordsExport(WorkProgress* progress) : QObject(progress), progress_(progress)
{
    slices_.setInterval(0);
    connect(&slices_, &QTimer::timeout, this, [this] { goOn(kSliceMs); });
    connect(progress, &WorkProgress::cancelled, this, [this] {
        if (!work_)
            return;
        stop();
        Q_EMIT cancelled();
    });
}

void RecordsExport::start(const QString& path, const std::shared_ptr<const TelemetryContents>& contents,
                          std::vector<int> records, ExportForm form, const ExportOptions& options)
{
    stop();
    file_ = std::make_unique<QSaveFile>(path);
    // What goes out is in large pieces already, and the buffer of the file would lose why one failed.
    if (!file_->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        const QString reason = file_->errorString();
        file_.reset();
        Q_EMIT failed(path, reason);
        return;
    }
    contents_ = contents;
    work_ = std::make_unique<RecordExport>(*file_, contents->records, std::move(records), form, options);
    progress_->start("rec_073");
    slices_.start();
    goOn(kQuietMs);
}

void RecordsExport::stop()
{
    if (!work_)
        return;
    slices_.stop();
    progress_->end();
    work_.reset();
    file_.reset();
    contents_.reset();
}

void RecordsExport::goOn(int milliseconds)
{
    if (!work_->writeFor(milliseconds)) {
        progress_->setShare(work_->share());
        return;
    }
    const bool isWhole = work_->succeeded() && file_->commit();
    const QString path = file_->fileName();
    const QString reason = file_->errorString();
    const qint64 withoutPlace = isWhole ? work_->withoutPlace() : 0;
    stop();
    if (isWhole)
        Q_EMIT written(path, withoutPlace);
    else
        Q_EMIT failed(path, reason);
}

} // namespace vlk
