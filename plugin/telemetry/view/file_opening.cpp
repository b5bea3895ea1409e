#include "telemetry/view/file_opening.h"

#include "telemetry/view/work_progress.h"

namespace vlk {

FileOpening::FileOpening(WorkProgress* progress) : QObject(progress), progress_(progress)
{
    slices_.setInterval(0);
    connect(&slices_, &QTimer::timeout, this, [this] { isRead_ ? end() : goOn(kSliceMs); });
    connect(progress, &WorkProgress::cancelled, this, [this] {
        if (!file_)
            return;
        stop();
        Q_EMIT cancelled();
    });
}

void FileOpening::start(const QString& path, TelemetryReading reading)
{
    stop();
    file_ = std::make_unique<StoredFile>(path, reading);
    isRead_ = false;
    progress_->start("rec_072");
    slices_.start();
    goOn(kQuietMs);
    if (isRead_)
        end();
}

void FileOpening::stop()
{
    if (!file_)
        return;
    slices_.stop();
    progress_->end();
    file_.reset();
}

void FileOpening::goOn(int milliseconds)
{
    isRead_ = file_->readFor(milliseconds);
    progress_->setShare(file_->share());
}

// In a turn of its own where the reading took several.
void FileOpening::end()
{
    const auto contents = std::make_shared<TelemetryContents>(file_->take());
    stop();
    Q_EMIT opened(contents);
}

} // namespace vlk
