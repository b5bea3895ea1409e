#pragma once

// Polls the tracker while a page with live values is on top. It sends the request of the tab that is current
// and goes on only when an answer has come, so that an answer that never comes just stops it. One kind of
// monitor runs at a time: the accelerometer's or the input lines'.

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
        std::function<void()> stopPages;         // the pages show that monitoring has ended
        std::function<void()> clearAccelDisplay; // an accelerometer command was carried out
    };

    explicit ConfigMonitor(Window window, QObject* parent = nullptr);

    void setConnected(bool connected) { connected_ = connected; }

    void startAccel(bool on, int periodMs);
    void startLines(bool on, const QByteArray& list, int periodMs);

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
    bool isOn() const { return monitorOn_; }

private:
    enum Step { Idle = 0, Reading = 1, WaitingForCommand = 2 };

    void sendCommand();
    void end();

    Window window_;
    QByteArray monitorList_;
    int awaitingAnswer_ = 0;
    int monitorStep_ = Idle;
    QTimer timerAnalog_;
    QTimer repeat_;
    bool sending_ = false;
    int monitorPeriodMs_ = 3000;
    bool monitorOn_ = false;
    bool connected_ = false;
};

} // namespace vlk
