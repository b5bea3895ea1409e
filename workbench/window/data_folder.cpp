#include "window/data_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cerrno>

namespace workbench {

QString whyNotWritable(const QString& folder)
{
    const QDir directory(folder);
    if (!directory.mkpath(QStringLiteral("."))) {
        QFileInfo there(directory.absolutePath());
        while (!there.exists() && !there.isRoot())
            there.setFile(there.path());
        return qt_error_string(there.isDir() ? EACCES : ENOTDIR);
    }
    QTemporaryFile probe(directory.filePath(QStringLiteral("probe.XXXXXX")));
    return probe.open() && probe.write("x", 1) == 1 && probe.flush() ? QString() : probe.errorString();
}

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
    if (const QString reason = whyNotWritable(folder.path()); !reason.isEmpty()) {
        error_ += QStringLiteral(": ") + reason;
        return false;
    }
    for (const char* part : {"settings", "tracker", "Data/TMI", "Data/XML"}) {
        if (!folder.mkpath(QLatin1String(part)))
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
