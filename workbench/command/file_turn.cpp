#include "command/file_turn.h"

#include <QFile>

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace workbench::command {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kPatience(10);
constexpr std::chrono::milliseconds kPause(5);

bool isPlain(const QByteArray& name, struct stat* found)
{
    return stat(name.constData(), found) == 0 && S_ISREG(found->st_mode);
}

} // namespace

FileTurn::FileTurn(const QString& name)
{
    const QByteArray path = QFile::encodeName(name);
    const Clock::time_point end = Clock::now() + kPatience;
    struct stat there = {};
    while (isPlain(path, &there) && (file_ = open(path.constData(), O_RDONLY | O_CLOEXEC)) >= 0) {
        while (flock(file_, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR)
                return;
            if (Clock::now() > end) {
                has_ = false;
                return;
            }
            std::this_thread::sleep_for(kPause);
        }
        struct stat held = {};
        if (fstat(file_, &held) != 0 || !isPlain(path, &there) ||
            (held.st_ino == there.st_ino && held.st_dev == there.st_dev))
            return;
        // Who had the turn has put a new file in its place.
        close(std::exchange(file_, -1));
    }
}

FileTurn::~FileTurn()
{
    if (file_ >= 0)
        close(file_);
}

} // namespace workbench::command
