#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

// While it exists, no file of this process grows beyond `room` bytes.
class FullDisk
{
public:
    explicit FullDisk(rlim_t room)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{room, before_.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            qFatal("the room for files cannot be limited");
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit before_{};
};
