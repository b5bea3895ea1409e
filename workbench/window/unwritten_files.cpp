#include "window/unwritten_files.h"

#include "road/secret_file.h"

#include <QDir>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcUnwritten, "vlk.workbench.unwritten")

namespace workbench {

namespace {

// Whoever wants to try again does so sooner.
constexpr int kMostDays = 92;

QFileInfoList filesIn(const QString& folder)
{
    return QDir(folder).entryInfoList({QStringLiteral("*.xml")}, QDir::Files);
}

void removeFile(const QString& path)
{
    if (!QFile::remove(path))
        qCWarning(lcUnwritten) << "cannot remove" << path;
}

// Paths; the same document may have been left more than once by an earlier version.
QStringList filesWith(const QByteArray& document, const QString& folder)
{
    QStringList paths;
    for (const QFileInfo& info : filesIn(folder)) {
        QFile file(info.filePath());
        if (info.size() == document.size() && file.open(QIODevice::ReadOnly) && file.readAll() == document)
            paths.append(info.filePath());
    }
    return paths;
}

} // namespace

UnwrittenFiles::Taken UnwrittenFiles::take(const QString& path, const QByteArray& document,
                                           const QDateTime& now) const
{
    const QStringList same = filesWith(document, folder_);
    if (!same.isEmpty() && QFileInfo(path).size() == document.size()) {
        // As if it were new, for those that are dropped by age.
        QFile kept(same.first());
        if (kept.open(QIODevice::Append))
            kept.setFileTime(now, QFileDevice::FileModificationTime);
        removeFile(path);
        return {same.first(), true};
    }
    const QDir folder(folder_);
    folder.mkpath(QStringLiteral("."));
    const QString moment = now.toString(QStringLiteral("yyyy-MM-dd hh_mm_ss"));
    QString aside = folder.filePath(moment + QStringLiteral(".xml"));
    for (int number = 2; QFile::exists(aside); ++number)
        aside = folder.filePath(QStringLiteral("%1_%2.xml").arg(moment).arg(number));
    if (!QFile::rename(path, aside))
        return {path, false};
    QFile::setPermissions(aside, kOwnerOnly);
    return {aside, false};
}

void UnwrittenFiles::drop(const QByteArray& document) const
{
    for (const QString& path : filesWith(document, folder_))
        removeFile(path);
}

void UnwrittenFiles::dropOld(const QDateTime& now) const
{
    for (const QFileInfo& info : filesIn(folder_)) {
        if (info.lastModified().daysTo(now) > kMostDays)
            removeFile(info.filePath());
    }
}

} // namespace workbench
