#include "telemetry/view/file_opening.h"

#include "telemetry/shown/work_progress.h"

namespace vlk {

FileOpening::FileOpening(WorkProgress* progress) : QObject(progress), progress_(progress)
{
    slices_.setInterval(0);
    connect(&slices_, &QTimer::timeout, this, [this] {
        if (!isRead_)
            goOn(kSliceMs);
        else if (!contents_)
            take();
        else
            end();
    });
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
    if (!isRead_)
        return;
    take();
    end();
}

void FileOpening::stop()
{
    if (!file_)
        return;
    slices_.stop();
    progress_->end();
    file_.reset();
    contents_.reset();
}

void FileOpening::goOn(int milliseconds)
{
    isRead_ = file_->readFor(milliseconds);
    progress_->setShare(file_->share());
}

// As end(), in a turn of its own where the reading took several.
void FileOpening::take()
{
    contents_ = std::make_shared<TelemetryContents>(file_->take());
    Q_EMIT wholeRead(contents_);
}

void FileOpening::end()
{
    const auto contents = std::move(contents_);
    stop();
    Q_EMIT opened(contents);
}

} // namespace vlk
