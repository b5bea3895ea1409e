#pragma once

// The folder in which the workbench keeps everything: settings, the simulated tracker's memory, the data
// folders, and the files that the plug-in writes into the process's current folder. Making it available also
// makes it the current folder.
//
// One workbench has the folder at a time: where another one is at work in it, nothing is touched, isUsable()
// is false and isInUse() is true.
//
// Without a wanted path it is the user's folder of application data; where that cannot be written, a
// temporary folder serves for this run and error() says why, as the system words it. A wanted path that
// cannot be written is not replaced: isUsable() is false.

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace workbench {

// Why no file can be put into a folder, as the system words it; empty if one can. A folder that is not there
// is made.
QString whyNotWritable(const QString& folder);

class DataFolder
{
public:
    explicit DataFolder(const QString& wanted = {});

    bool isUsable() const { return !path_.isEmpty(); }
    bool isInUse() const { return inUse_; }
    bool isTemporary() const { return temporary_ != nullptr; }
    QString error() const { return error_; }

    QString path() const { return path_; }
    QString settingsFile() const { return path_ + QStringLiteral("/settings/workbench.ini"); }
    QString trackerFolder() const { return path_ + QStringLiteral("/tracker"); }
    QString backupsFolder() const { return path_ + QStringLiteral("/backups"); }
    QString telemetryFolder() const { return path_ + QStringLiteral("/Data/TMI/"); }
    QString configurationFolder() const { return path_ + QStringLiteral("/Data/XML/"); }

private:
    bool prepare(const QString& path);

    QString path_;
    QString error_;
    std::unique_ptr<QTemporaryDir> temporary_;
    std::unique_ptr<QLockFile> lock_;
    bool inUse_ = false;
};

} // namespace workbench
