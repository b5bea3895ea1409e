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

} // namespace

QString UnwrittenFiles::take(const QString& path, const QDateTime& now) const
{
    const QDir folder(folder_);
    folder.mkpath(QStringLiteral("."));
    const QString moment = now.toString(QStringLiteral("yyyy-MM-dd hh_mm_ss"));
    QString aside = folder.filePath(moment + QStringLiteral(".xml"));
    for (int number = 2; QFile::exists(aside); ++number)
        aside = folder.filePath(QStringLiteral("%1_%2.xml").arg(moment).arg(number));
    if (!QFile::rename(path, aside))
        return path;
    QFile::setPermissions(aside, kOwnerOnly);
    return aside;
}

void UnwrittenFiles::drop(const QByteArray& document) const
{
    for (const QFileInfo& info : filesIn(folder_)) {
        QFile file(info.filePath());
        if (info.size() == document.size() && file.open(QIODevice::ReadOnly) && file.readAll() == document)
            removeFile(info.filePath());
    }
}

void UnwrittenFiles::dropOld(const QDateTime& now) const
{
    for (const QFileInfo& info : filesIn(folder_)) {
        if (info.lastModified().daysTo(now) > kMostDays)
            removeFile(info.filePath());
    }
}

} // namespace workbench
