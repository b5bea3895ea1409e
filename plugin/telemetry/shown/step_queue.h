#pragma once

// Work in steps of some milliseconds each, done in their order from the event loop: in one turn of it as many
// as leave time for what else happens.

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

namespace vlk {

class StepQueue : public QObject
{
    Q_OBJECT

public:
    explicit StepQueue(QObject* parent);

    // Behind the others; a step may add more.
    void add(std::function<void()> step);
    // Does what is left at once.
    void finish();
    // Gives up what is left.
    void clear();
    bool isEmpty() const { return steps_.empty(); }

Q_SIGNALS:
    // What lasts longer than a moment: how much of it is done, 1 at its end or where it was given up.
    void wentOn(double share);

private:
    void doFirst();
    void goOn();
    void tell();

    std::deque<std::function<void()>> steps_;
    QTimer turns_;
    QElapsedTimer clock_; // since there was none
    int added_ = 0;       // since then
    int done_ = 0;
};

} // namespace vlk
