#include "window/end_signals.h"

#include "window/workbench_window.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace workbench {

namespace {

Q_LOGGING_CATEGORY(lcEnd, "vlk.workbench.end")

constexpr int kEndSignals[] = {SIGTERM, SIGINT, SIGHUP};

// What is read and what is written of the pipe.
std::array<int, 2> theEnds{-1, -1};

// Nothing else is allowed in the middle of whatever the program does.
void noteEndSignal(int /*number*/)
{
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(theEnds[1], &byte, 1);
    errno = before;
}

} // namespace

EndSignals::EndSignals(WorkbenchWindow& window)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, &window, [&window] { window.endSave(); });
    if (::pipe2(theEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(lcEnd) << "no pipe for signals";
        return;
    }
    auto* notifier = new QSocketNotifier(theEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, &window, [&window, notifier] {
        notifier->setEnabled(false);
        window.leave();
    });
    for (const int number : kEndSignals) {
        struct sigaction now = {};
        // One that is ignored from outside stays so.
        if (::sigaction(number, nullptr, &now) != 0 || now.sa_handler == SIG_IGN)
            continue;
        now = {};
        now.sa_handler = &noteEndSignal;
        now.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        ::sigaction(number, &now, nullptr);
    }
}

EndSignals::~EndSignals()
{
    for (const int number : kEndSignals) {
        struct sigaction now = {};
        if (::sigaction(number, nullptr, &now) == 0 && now.sa_handler == &noteEndSignal)
            std::signal(number, SIG_DFL);
    }
    for (int& end : theEnds) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

} // namespace workbench
