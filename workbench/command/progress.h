#pragma once

// How many of the things that a command works on are done, where standard error is a terminal. Lines that go
// there meanwhile are written through it, from any thread.

#include <QByteArray>

#include <chrono>
#include <mutex>

namespace workbench::command {

class Progress
{
public:
    Progress();
    ~Progress();
    Q_DISABLE_COPY_MOVE(Progress)

    void show(std::size_t done);
    // Out of the way of what comes on standard output.
    void clear();
    void writeError(const QByteArray& lines);

private:
    void remove();

    const bool isTerminal_;
    bool isShown_ = false;
    std::chrono::steady_clock::time_point shown_ = std::chrono::steady_clock::now();
    std::mutex mutex_;
};

} // namespace workbench::command
