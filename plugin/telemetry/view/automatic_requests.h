#pragma once

// Asks for the current record again and again. In the production modes every fifth request of the timer is
// the end of a wait step instead.

#include <QTimer>

namespace vlk {

class AutomaticRequests : public QObject
{
    Q_OBJECT

public:
    explicit AutomaticRequests(QObject* parent);

    // Asks at once, then after so many seconds.
    void start(int seconds);
    // The timer's turn: asks, and waits for so many seconds again.
    void next(int seconds);
    void stop() { autoTimer_.stop(); }

Q_SIGNALS:
    void timeout();

private:
    void wait(int seconds);

    QTimer autoTimer_;
    int autoCount_ = 1;
};

} // namespace vlk
