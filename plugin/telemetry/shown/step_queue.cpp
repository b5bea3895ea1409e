#include "telemetry/shown/step_queue.h"

#include "telemetry/shown/work_progress.h"

#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vlk {

namespace {

// What was needed meanwhile alone lies between what stays, where the C library keeps it: tens of megabytes
// behind a million records. Giving it back takes some milliseconds.
void giveMemoryBack()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace

StepQueue::StepQueue(QObject* parent) : QObject(parent)
{
    turns_.setInterval(0);
    connect(&turns_, &QTimer::timeout, this, &StepQueue::goOn);
}

void StepQueue::add(std::function<void()> step)
{
    if (steps_.empty() && !turns_.isActive()) {
        clock_.start();
        added_ = 0;
        done_ = 0;
    }
    ++added_;
    steps_.push_back(std::move(step));
    turns_.start();
}

void StepQueue::finish()
{
    if (isEmpty())
        return;
    while (!steps_.empty())
        doFirst();
    tell();
}

void StepQueue::clear()
{
    if (isEmpty())
        return;
    steps_.clear();
    tell();
}

void StepQueue::tell()
{
    if (steps_.empty())
        turns_.stop();
    if (!clock_.isValid() || clock_.elapsed() < kQuietMs)
        return;
    if (steps_.empty())
        giveMemoryBack();
    Q_EMIT wentOn(steps_.empty() ? 1 : static_cast<double>(done_) / added_);
}

void StepQueue::doFirst()
{
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    ++done_;
    step();
}

// None begins in the second half of a slice, so that the last one has room in it.
void StepQueue::goOn()
{
    QElapsedTimer clock;
    clock.start();
    while (!steps_.empty() && clock.elapsed() < kSliceMs / 2)
        doFirst();
    tell();
}

} // namespace vlk
