#include "window/data_folder.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace workbench {

DataFolder::DataFolder(const QString& wanted)
{
    if (!wanted.isEmpty()) {
        prepare(wanted);
        return;
    }
    if (prepare(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)) || inUse_)
        return;
    temporary_ = std::make_unique<QTemporaryDir>();
    const QString reason = error_;
    if (temporary_->isValid())
        prepare(temporary_->path());
    error_ = reason;
}

bool DataFolder::prepare(const QString& path)
{
    const QDir folder(QDir(path).absolutePath());
    error_ = folder.path();
    for (const char* part : {"settings", "tracker", "Data/TMI", "Data/XML"})
        if (!folder.mkpath(QLatin1String(part)))
            return false;
    QTemporaryFile probe(folder.filePath(QStringLiteral("probe.XXXXXX")));
    if (!probe.open() || probe.write("x", 1) != 1 || !probe.flush()) {
        error_ += QStringLiteral(": ") + probe.errorString();
        return false;
    }
    lock_ = std::make_unique<QLockFile>(folder.filePath(QStringLiteral("workbench.lock")));
    // Held as long as its process runs, however long that is.
    lock_->setStaleLockTime(0);
    if (!lock_->tryLock()) {
        inUse_ = true;
        return false;
    }
    if (!QDir::setCurrent(folder.path()))
        return false;
    path_ = folder.path();
    error_.clear();
    return true;
}

} // namespace workbench
