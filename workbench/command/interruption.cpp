#include "command/interruption.h"

#include <atomic>
#include <csignal>

namespace workbench::command {

namespace {

std::atomic<bool> wasInterrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free); // a handler of signals may set it

void interrupt(int /*signal*/)
{
    wasInterrupted = true;
    std::signal(SIGINT, SIG_DFL);
}

} // namespace

void awaitInterruption()
{
    if (std::signal(SIGINT, interrupt) == SIG_IGN)
        std::signal(SIGINT, SIG_IGN);
}

bool isInterrupted()
{
    return wasInterrupted;
}

void endIfInterrupted()
{
    if (!wasInterrupted)
        return;
    std::signal(SIGINT, SIG_DFL);
    std::raise(SIGINT);
}

} // namespace workbench::command
