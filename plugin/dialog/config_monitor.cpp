#include "dialog/config_monitor.h"

#include "link/requests.h"

#include <algorithm>
#include <utility>

namespace vlk {

namespace {
// Status bytes of a command that was carried out.
constexpr int kCommandDone = 1;
constexpr int kCommandDoneAlso = 49;
// How long a command waits that was refused before its request returned, in milliseconds.
constexpr int kPauseMs = 100;
} // namespace

ConfigMonitor::ConfigMonitor(Window window, QObject* parent)
    : QObject(parent), window_(std::move(window)), timerAnalog_(this)
{
    repeat_.setSingleShot(true);
    repeat_.setInterval(kPauseMs);
    connect(&repeat_, &QTimer::timeout, this, [this] {
        if (repeatsCommand())
            sendCommand();
    });
}

void ConfigMonitor::setConnected(bool connected)
{
    connected_ = connected;
    if (connected)
        return;
    end();
    commandsOnTheWay_ = 0;
}

bool ConfigMonitor::mayGoOn() const
{
    return connected_ && isOn() && window_.isActive() && window_.currentTab() == running_;
}

void ConfigMonitor::start(Tab kind, bool on, int periodMs)
{
    if (running_ != kind) {
        if (!on)
            return;
        end();
    }
    timerAnalog_.stop();
    if (on && paused_ != kind)
        forgetPause();
    paused_ = Tab::Other;
    monitorPeriodMs_ = periodMs;
    running_ = on ? kind : Tab::Other;
    if (on)
        commandGivenUp_ = false;
}

void ConfigMonitor::startAccel(bool on, int periodMs)
{
    start(Tab::Accel, on, periodMs);
    if (!on)
        return;
    awaitingAnswer_ = 1;
    monitorStep_ = Reading;
    sendRequestOfTab();
}

void ConfigMonitor::startLines(bool on, const QByteArray& list, int periodMs)
{
    start(Tab::InputLines, on, periodMs);
    monitorList_ = list;
    if (on)
        sendLines(list);
}

void ConfigMonitor::end()
{
    forgetPause();
    endBy(window_.stopPage);
}

// Where the user has left no more than the window.
void ConfigMonitor::endOrPause()
{
    if (!connected_ || !isOn() || window_.currentTab() != running_) {
        end();
        return;
    }
    const Tab paused = running_;
    endBy(window_.pausePage);
    paused_ = paused;
}

void ConfigMonitor::forgetPause()
{
    if (const Tab paused = std::exchange(paused_, Tab::Other); paused != Tab::Other)
        window_.stopPage(paused);
}

void ConfigMonitor::activated()
{
    if (paused_ == Tab::Other)
        return;
    if (connected_ && window_.currentTab() == paused_)
        window_.resumePage(std::exchange(paused_, Tab::Other));
    else
        forgetPause();
}

void ConfigMonitor::endBy(const std::function<void(Tab)>& tellPage)
{
    timerAnalog_.stop();
    repeat_.stop();
    awaitingAnswer_ = 0;
    monitorStep_ = Idle;
    commandGivenUp_ = commandGivenUp_ || commandsOnTheWay_ > 0;
    if (const Tab ended = std::exchange(running_, Tab::Other); ended != Tab::Other)
        tellPage(ended);
}

// A request by hand on one tab tells that the user has left the other.
void ConfigMonitor::endIfLeft()
{
    if (isOn() && window_.currentTab() != running_)
        end();
}

void ConfigMonitor::sendRequestOfTab()
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

void ConfigMonitor::pollCurrentTab()
{
    endIfLeft();
    sendRequestOfTab();
}

// The user asks, or the timer of the page whose monitor runs. The monitor ends here as at its own timeout,
// and lets a command go first.
void ConfigMonitor::requestAccel()
{
    if (running_ == Tab::Accel && !mayGoOn()) {
        endOrPause();
        return;
    }
    endIfLeft();
    const bool isPaused = running_ == Tab::Accel && monitorStep_ == WaitingForCommand;
    if (!isPaused && window_.currentTab() == Tab::Accel)
        requests::accel();
}

void ConfigMonitor::requestAccelResult()
{
    endIfLeft();
    commandGivenUp_ = false;
    if (awaitingAnswer_ == 0)
        sendCommand();
}

// What was on its way when the monitor ended or the window was left is given up, and so is what would mix
// with the other kind.
bool ConfigMonitor::repeatsCommand() const
{
    return !commandGivenUp_ && window_.currentTab() != Tab::InputLines;
}

// The answer may come within the call and ask for the next command there: that one waits, since a host which
// refuses every command would otherwise never return from the first.
void ConfigMonitor::sendCommand()
{
    timerAnalog_.stop();
    repeat_.stop();
    if (sending_) {
        repeat_.start();
        return;
    }
    ++commandsOnTheWay_;
    sending_ = true;
    requests::accelCommand();
    sending_ = false;
}

void ConfigMonitor::requestLines(const QByteArray& list)
{
    endIfLeft();
    sendLines(list);
}

void ConfigMonitor::sendLines(const QByteArray& list)
{
    if (window_.currentTab() == Tab::InputLines)
        requests::lines(list);
}

void ConfigMonitor::linesAnswered()
{
    if (running_ == Tab::InputLines)
        timerAnalog_.start(monitorPeriodMs_);
}

void ConfigMonitor::accelAnswered()
{
    awaitingAnswer_ = 0;
    if (!connected_ || running_ != Tab::Accel || window_.currentTab() != Tab::Accel)
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
    if (status == kCommandDone || status == kCommandDoneAlso) {
        commandsOnTheWay_ = 0;
        repeat_.stop();
        window_.clearAccelDisplay();
        if (running_ == Tab::Accel && !timerAnalog_.isActive())
            timerAnalog_.start(monitorPeriodMs_);
        return;
    }
    commandsOnTheWay_ = std::max(commandsOnTheWay_ - 1, 0);
    if (!repeatsCommand())
        return;
    // The step is set first: the answer may come before the request returns.
    monitorStep_ = WaitingForCommand;
    // While another one is on its way, that is the repetition.
    if (commandsOnTheWay_ == 0)
        sendCommand();
}

void ConfigMonitor::timeout()
{
    timerAnalog_.stop();
    if (!mayGoOn())
        endOrPause();
    else if (running_ == Tab::InputLines)
        sendLines(monitorList_);
}

} // namespace vlk
