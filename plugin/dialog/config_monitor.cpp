#include "dialog/config_monitor.h"

#include "link/requests.h"

#include <utility>

namespace vlk {

namespace {
// Status bytes of a command that was carried out.
constexpr int commandDone = 1;
constexpr int commandDoneAlso = 49;
// How long a command waits that was refused before its request returned, in milliseconds.
constexpr int pauseMs = 100;
} // namespace

ConfigMonitor::ConfigMonitor(Window window, QObject* parent)
    : QObject(parent), window_(std::move(window)), timerAnalog_(this)
{
    repeat_.setSingleShot(true);
    connect(&repeat_, &QTimer::timeout, this, [this] {
        if (connected_ && monitorStep_ == WaitingForCommand && window_.currentTab() == Tab::Accel)
            sendCommand();
    });
}

void ConfigMonitor::startAccel(bool on, int periodMs)
{
    timerAnalog_.stop();
    monitorPeriodMs_ = periodMs;
    monitorOn_ = on;
    if (!on)
        return;
    awaitingAnswer_ = 1;
    monitorStep_ = Reading;
    pollCurrentTab();
}

void ConfigMonitor::startLines(bool on, const QByteArray& list, int periodMs)
{
    timerAnalog_.stop();
    monitorPeriodMs_ = periodMs;
    monitorOn_ = on;
    monitorList_ = list;
    if (on)
        requestLines(list);
}

void ConfigMonitor::pollCurrentTab()
{
    switch (window_.currentTab()) {
    case Tab::Accel:
        requests::accel();
        break;
    case Tab::InputLines:
        requests::analog();
        break;
    case Tab::System:
        requests::supply();
        break;
    case Tab::Other:
        break;
    }
}

void ConfigMonitor::requestAccel()
{
    if (window_.currentTab() == Tab::Accel)
        requests::accel();
}

void ConfigMonitor::requestAccelResult()
{
    if (awaitingAnswer_ == 0)
        sendCommand();
}

// The answer may come within the call and ask for the next command there: that one waits, since a host which
// refuses every command would otherwise never return from the first.
void ConfigMonitor::sendCommand()
{
    timerAnalog_.stop();
    if (sending_) {
        repeat_.start(pauseMs);
        return;
    }
    sending_ = true;
    requests::accelCommand();
    sending_ = false;
}

void ConfigMonitor::requestLines(const QByteArray& list)
{
    if (window_.currentTab() == Tab::InputLines)
        requests::lines(list);
}

void ConfigMonitor::linesAnswered()
{
    if (monitorOn_)
        timerAnalog_.start(monitorPeriodMs_);
}

void ConfigMonitor::accelAnswered()
{
    awaitingAnswer_ = 0;
    if (!connected_ || !monitorOn_ || window_.currentTab() != Tab::Accel)
        return;
    if (monitorStep_ == WaitingForCommand)
        requestAccelResult();
    else
        timerAnalog_.start(monitorPeriodMs_);
}

void ConfigMonitor::accelCommandAnswered(int status)
{
    awaitingAnswer_ = 0;
    monitorStep_ = Idle;
    if (status != commandDone && status != commandDoneAlso) {
        // The step is set first: the answer may come before the request returns.
        monitorStep_ = WaitingForCommand;
        sendCommand();
        return;
    }
    window_.clearAccelDisplay();
    if (monitorOn_ && !timerAnalog_.isActive())
        timerAnalog_.start(monitorPeriodMs_);
}

void ConfigMonitor::timeout()
{
    timerAnalog_.stop();
    const Tab tab = window_.currentTab();
    if (connected_ && monitorOn_ && window_.isActive() && (tab == Tab::Accel || tab == Tab::InputLines))
        requestLines(monitorList_);
    else
        end();
}

void ConfigMonitor::end()
{
    awaitingAnswer_ = 0;
    monitorStep_ = Idle;
    monitorOn_ = false;
    window_.stopPages();
}

} // namespace vlk
