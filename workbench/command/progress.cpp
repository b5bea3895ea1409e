#include "command/progress.h"

#include "command/output.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

namespace workbench::command {

Progress::Progress() : isTerminal_(isatty(STDERR_FILENO) != 0) {}

Progress::~Progress()
{
    remove();
}

void Progress::show(std::size_t done)
{
    const auto now = std::chrono::steady_clock::now();
    const std::lock_guard lock(mutex_);
    if (!isTerminal_ || now - shown_ < std::chrono::milliseconds(200))
        return;
    shown_ = now;
    isShown_ = true;
    std::fprintf(stderr, "\r%zu", done);
}

void Progress::clear()
{
    const std::lock_guard lock(mutex_);
    remove();
}

void Progress::writeError(const QByteArray& lines)
{
    if (lines.isEmpty())
        return;
    const std::lock_guard lock(mutex_);
    remove();
    command::writeError(lines);
}

void Progress::remove()
{
    if (std::exchange(isShown_, false))
        std::fputs("\r\033[K", stderr);
}

} // namespace workbench::command
