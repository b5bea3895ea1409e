#pragma once

// Work on all cores whose results come in the order of what they were made from, and no more of which wait
// than the cores need.

#include <QtGlobal>

#include <algorithm>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <sched.h>
#include <thread>
#include <vector>

namespace workbench::command {

// That this program may use, which need not be all.
inline int coresToUse()
{
    cpu_set_t cores;
    if (sched_getaffinity(0, sizeof cores, &cores) == 0)
        return std::max(CPU_COUNT(&cores), 1);
    return static_cast<int>(std::max(std::thread::hardware_concurrency(), 1U));
}

template <class Item, class Result>
class InOrder
{
public:
    // `next` gives what is to be worked on, in one thread at a time, none at the end; `work` runs in several
    // at once. `mostWaiting`: results, where some take much longer than others; 0 for twice the cores.
    InOrder(std::function<std::optional<Item>()> next, std::function<Result(Item)> work,
            std::size_t mostWaiting = 0)
        : mostWaiting_(mostWaiting != 0 ? mostWaiting : 2 * static_cast<std::size_t>(threads_)),
          next_(std::move(next)), work_(std::move(work))
    {
        for (int i = 0; i < threads_; ++i)
            workers_.emplace_back([this] { run(); });
    }
    ~InOrder()
    {
        {
            const std::lock_guard lock(mutex_);
            isOver_ = true;
        }
        changed_.notify_all();
        for (std::thread& worker : workers_)
            worker.join();
    }
    Q_DISABLE_COPY_MOVE(InOrder)

    // The next result; none behind the last one.
    std::optional<Result> take()
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return waiting_.contains(given_) || (isOver_ && given_ == taken_); });
        const auto first = waiting_.find(given_);
        if (first == waiting_.end())
            return std::nullopt;
        std::optional<Result> result = std::move(first->second);
        waiting_.erase(first);
        ++given_;
        changed_.notify_all();
        return result;
    }

private:
    void run()
    {
        for (;;) {
            std::unique_lock reading(reading_);
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return taken_ < given_ + mostWaiting_ || isOver_; });
            if (isOver_)
                return;
            lock.unlock();
            std::optional<Item> item = next_();
            lock.lock();
            if (!item) {
                isOver_ = true;
                changed_.notify_all();
                return;
            }
            const std::size_t number = taken_++;
            lock.unlock();
            reading.unlock();
            Result result = work_(std::move(*item));
            lock.lock();
            waiting_.emplace(number, std::move(result));
            changed_.notify_all();
        }
    }

    const int threads_ = coresToUse();
    const std::size_t mostWaiting_;
    std::function<std::optional<Item>()> next_;
    std::function<Result(Item)> work_;
    std::mutex reading_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::size_t, Result> waiting_;
    std::size_t taken_ = 0;
    std::size_t given_ = 0;
    bool isOver_ = false;
    std::vector<std::thread> workers_;
};

} // namespace workbench::command
