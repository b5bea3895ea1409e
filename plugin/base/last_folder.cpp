#include "base/last_folder.h"

#include <QFileInfo>
#include <QHash>

namespace vlk {

namespace {

QHash<int, QString>& foldersByKind()
{
    static QHash<int, QString> folders;
    return folders;
}

} // namespace

QString lastFolder(FileKind kind, const QString& otherwise)
{
    const QString last = foldersByKind().value(static_cast<int>(kind));
    return !last.isEmpty() && QFileInfo(last).isDir() ? last : otherwise;
}

void rememberFolder(FileKind kind, const QString& path)
{
    foldersByKind()[static_cast<int>(kind)] = QFileInfo(path).path();
}

} // namespace vlk
