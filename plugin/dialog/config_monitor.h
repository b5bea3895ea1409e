#pragma once

// Polls the tracker while a page with live values is on top. It sends the request of the tab that is current
// and goes on only when an answer has come, so that an answer that never comes just stops it. One kind of
// monitor runs at a time: the accelerometer's or the input lines'. It ends, and its page with it, when
// something is due while another tab is current or the user does not work in its window. In the latter case
// it begins anew as soon as the user is back.
//
// A command to the accelerometer that the tracker refuses is sent again until it is carried out.

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <functional>

namespace vlk {

class ConfigMonitor : public QObject
{
    Q_OBJECT

public:
    enum class Tab { Other, System, InputLines, Accel };

    // What the monitor asks of the window around it.
    struct Window
    {
        std::function<Tab()> currentTab;
        std::function<bool()> isActive;
        std::function<void(Tab)> stopPage;       // the page shows that its monitor has ended
        std::function<void(Tab)> pausePage;      // and that it will begin anew
        std::function<void(Tab)> resumePage;     // now
        std::function<void()> clearAccelDisplay; // an accelerometer command was carried out
    };

    explicit ConfigMonitor(Window window, QObject* parent = nullptr);

    void setConnected(bool connected);

    void startAccel(bool on, int periodMs);
    void startLines(bool on, const QByteArray& list, int periodMs);
    // Whatever runs; its page is told.
    void end();

    // The user works in the window again.
    void activated();

    // One request of the current tab, as a page asks for it.
    void pollCurrentTab();
    void requestAccel();
    void requestAccelResult();
    void requestLines(const QByteArray& list);

    // Answers of the tracker.
    void linesAnswered();
    void supplyAnswered() { awaitingAnswer_ = 0; }
    void accelAnswered();
    void accelCommandAnswered(int status);

    // The timer has run out.
    void timeout();

    QTimer* timer() { return &timerAnalog_; }
    bool isOn() const { return running_ != Tab::Other; }

private:
    enum Step { Idle = 0, Reading = 1, WaitingForCommand = 2 };

    bool mayGoOn() const;
    void endBy(const std::function<void(Tab)>& tellPage);
    void endOrPause();
    void forgetPause();
    void start(Tab kind, bool on, int periodMs);
    void endIfLeft();
    void sendRequestOfTab();
    void sendLines(const QByteArray& list);
    bool repeatsCommand() const;
    void sendCommand();

    Window window_;
    Tab running_ = Tab::Other; // whose monitor runs
    Tab paused_ = Tab::Other;  // whose begins anew
    QByteArray monitorList_;
    int awaitingAnswer_ = 0;
    int monitorStep_ = Idle;
    QTimer timerAnalog_;
    QTimer repeat_;
    int commandsOnTheWay_ = 0;
    bool sending_ = false;
    bool commandGivenUp_ = false;
    int monitorPeriodMs_ = 3000;
    bool connected_ = false;
};

} // namespace vlk
