#include "base/file_claim.h"

#include <QFileInfo>

#include <chrono>

namespace vlk {

namespace {

using namespace std::chrono_literals;

// How long a claim may stand: nobody knows whether a program on another computer still runs.
constexpr std::chrono::milliseconds kLongest = 7 * 24h;
constexpr std::chrono::milliseconds kPatience = 200ms; // with one who only looks

// Hidden, so that nobody takes it for a file of the folder.
QString lockOf(const QString& path)
{
    const QFileInfo file(path);
    return QStringLiteral("%1/.%2.lock").arg(file.path(), file.fileName());
}

} // namespace

FileClaim::FileClaim(const QString& path) : lock_(lockOf(path))
{
    lock_.setStaleLockTime(static_cast<int>(kLongest.count()));
    lock_.tryLock(static_cast<int>(kPatience.count()));
}

bool isClaimed(const QString& path)
{
    if (!QFileInfo::exists(lockOf(path)))
        return false;
    QLockFile lock(lockOf(path));
    lock.setStaleLockTime(static_cast<int>(kLongest.count()));
    return !lock.tryLock(0) && lock.error() == QLockFile::LockFailedError;
}

} // namespace vlk
