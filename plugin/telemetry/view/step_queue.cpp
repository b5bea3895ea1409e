#include "telemetry/view/step_queue.h"

#include "telemetry/view/work_progress.h"

#include <QElapsedTimer>

namespace vlk {

StepQueue::StepQueue(QObject* parent) : QObject(parent)
{
    turns_.setInterval(0);
    connect(&turns_, &QTimer::timeout, this, &StepQueue::goOn);
}

void StepQueue::add(std::function<void()> step)
{
    steps_.push_back(std::move(step));
    turns_.start();
}

void StepQueue::finish()
{
    while (!steps_.empty())
        doFirst();
}

void StepQueue::clear()
{
    steps_.clear();
}

void StepQueue::doFirst()
{
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    step();
}

// None begins in the second half of a slice, so that the last one has room in it.
void StepQueue::goOn()
{
    QElapsedTimer clock;
    clock.start();
    while (!steps_.empty() && clock.elapsed() < kSliceMs / 2)
        doFirst();
    if (steps_.empty())
        turns_.stop();
}

} // namespace vlk
