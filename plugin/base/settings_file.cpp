#include "base/settings_file.h"

#include <QDir>

namespace vlk {

QString settingsFile(const QString& folder, const char* name)
{
    if (folder.isEmpty() || !QDir(folder).exists())
        return {};
    return QDir(folder).filePath(QStringLiteral(".settings/") + QLatin1String(name));
}

} // namespace vlk
