#pragma once

// The files of a call, one by one: those that are named, and those that lie in the folders that are named, in
// the order of their names. Links to folders are not followed. Only the folders above the present file are
// held.

#include <QStringList>

#include <optional>
#include <vector>

namespace workbench::command {

struct File
{
    QString name;     // as it is given; below a folder "FOLDER/NAME"
    bool isNamed;     // itself, not its folder
    QString folder{}; // that is named, where it lies in one

    bool isStandardInput() const { return isNamed && name == QLatin1String("-"); }
};

class FileWalk
{
public:
    explicit FileWalk(QStringList names) : names_(std::move(names)) {}

    // A folder that cannot be listed is given as a file.
    std::optional<File> next();
    // Folders that were named, so far, and those of them that gave nothing.
    const QStringList& folders() const { return allFolders_; }
    const QStringList& emptyFolders() const { return emptyFolders_; }

private:
    struct Folder
    {
        QString name;
        QStringList entries; // backwards
    };
    bool enter(const QString& name);

    QStringList names_;
    int at_ = 0;
    std::vector<Folder> folders_;
    bool isEmpty_ = true; // the named one, so far
    QStringList allFolders_;
    QStringList emptyFolders_;
};

} // namespace workbench::command
