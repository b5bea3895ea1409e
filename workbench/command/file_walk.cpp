#include "command/file_walk.h"

#include <QDir>

#include <algorithm>

namespace workbench::command {

namespace {

bool isWanted(const QFileInfo& entry)
{
    const QString suffix = entry.suffix().toLower();
    // A link that leads nowhere is a file that cannot be read.
    return (entry.isFile() || (entry.isSymLink() && !entry.exists())) &&
           (suffix == QLatin1String("xml") || suffix == QLatin1String("tmi"));
}

} // namespace

bool FileWalk::enter(const QString& name)
{
    const QDir folder(name);
    if (!folder.isReadable())
        return false;
    QStringList entries =
        folder.entryList(QDir::Dirs | QDir::Files | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::sort(entries.begin(), entries.end(), std::greater<>());
    folders_.push_back({name.endsWith(QLatin1Char('/')) ? name : name + QLatin1Char('/'), entries});
    return true;
}

std::optional<File> FileWalk::next()
{
    for (;;) {
        if (folders_.empty()) {
            if (at_ == names_.size())
                return std::nullopt;
            const QString name = names_[at_++];
            isEmpty_ = true;
            if (name != QLatin1String("-") && QFileInfo(name).isDir() && enter(name)) {
                allFolders_ << name;
                continue;
            }
            return File{name, true};
        }
        Folder& folder = folders_.back();
        if (folder.entries.isEmpty()) {
            folders_.pop_back();
            if (folders_.empty() && isEmpty_)
                emptyFolders_ << names_[at_ - 1];
            continue;
        }
        const QString name = folder.name + folder.entries.takeLast();
        const QFileInfo entry(name);
        if (!entry.isDir()) {
            if (!isWanted(entry))
                continue;
        } else if (entry.isSymLink() || enter(name)) {
            continue;
        }
        isEmpty_ = false;
        return File{name, false, names_[at_ - 1]};
    }
}

} // namespace workbench::command
