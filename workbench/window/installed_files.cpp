#include "window/installed_files.h"

#include <QCoreApplication>
#include <QDir>

namespace workbench {

namespace {

QString firstExisting(const QStringList& candidates)
{
    for (const QString& candidate : candidates) {
        if (QFile::exists(candidate))
            return candidate;
    }
    return candidates.first();
}

QString fromExecutable(const QString& relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + relative);
}

} // namespace

QString libraryPath(const QString& file)
{
    return firstExisting({fromExecutable(file),
                          fromExecutable(QStringLiteral("../lib/vlk-workbench/") + file),
                          fromExecutable(QStringLiteral("../lib/") + file)});
}

QString pluginPath()
{
    return libraryPath(QStringLiteral("VLK_Device_R-7106.so"));
}

QString sharedFolder(const QString& name)
{
    return firstExisting(
        {fromExecutable(name), fromExecutable(QStringLiteral("../share/vlk-workbench/") + name)});
}

} // namespace workbench
