#pragma once

// Asks for the current record again and again. In the production modes every fifth request of the timer is
// the end of a wait step instead. Whoever takes the records tells the age of what is on show.

#include <QTimer>

namespace vlk {

class PresentAge;

class AutomaticRequests : public QObject
{
    Q_OBJECT

public:
    AutomaticRequests(PresentAge& age, QObject* parent);

    // Asks at once, then after so many seconds.
    void start(int seconds);
    // The timer's turn: asks, and waits for so many seconds again.
    void next(int seconds);
    void stop();

Q_SIGNALS:
    void timeout();

private:
    void wait(int seconds);
    void expectIn(int seconds);

    PresentAge& age_;
    int seconds_ = 0; // between records
    QTimer autoTimer_;
    int autoCount_ = 1;
};

} // namespace vlk
