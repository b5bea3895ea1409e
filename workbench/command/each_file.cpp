#include "command/each_file.h"

#include "window/languages.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <map>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace workbench::command {

namespace {

class Progress
{
public:
    void show(std::size_t done)
    {
        const auto now = std::chrono::steady_clock::now();
        if (!isTerminal_ || now - shown_ < std::chrono::milliseconds(200))
            return;
        shown_ = now;
        isShown_ = true;
        std::fprintf(stderr, "\r%zu", done);
    }
    void clear()
    {
        if (std::exchange(isShown_, false))
            std::fputs("\r\033[K", stderr);
    }

private:
    const bool isTerminal_ = isatty(STDERR_FILENO) != 0;
    bool isShown_ = false;
    std::chrono::steady_clock::time_point shown_ = std::chrono::steady_clock::now();
};

class Pipeline
{
public:
    Pipeline(const QStringList& names, const std::function<Outcome(const File&)>& work)
        : walk_(names), work_(work), mostWaiting_(16 * std::size_t{std::max(threads_, 1U)})
    {
        for (unsigned i = 0; i < std::max(threads_, 1U); ++i)
            workers_.emplace_back([this] { run(); });
    }
    ~Pipeline()
    {
        for (std::thread& worker : workers_)
            worker.join();
    }
    Q_DISABLE_COPY_MOVE(Pipeline)

    // The outcome of the next file; none behind the last one.
    std::optional<Outcome> next()
    {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return waiting_.contains(given_) || (isOver_ && given_ == taken_); });
        const auto first = waiting_.find(given_);
        if (first == waiting_.end())
            return std::nullopt;
        Outcome outcome = std::move(first->second);
        waiting_.erase(first);
        ++given_;
        changed_.notify_all();
        return outcome;
    }
    // Behind the last outcome.
    const QStringList& emptyFolders() const { return walk_.emptyFolders(); }

private:
    void run()
    {
        for (;;) {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return taken_ < given_ + mostWaiting_ || isOver_; });
            const std::optional<File> file = isOver_ ? std::nullopt : walk_.next();
            if (!file) {
                isOver_ = true;
                changed_.notify_all();
                return;
            }
            const std::size_t number = taken_++;
            lock.unlock();
            Outcome outcome = work_(*file);
            lock.lock();
            waiting_.emplace(number, std::move(outcome));
            changed_.notify_all();
        }
    }

    const unsigned threads_ = std::thread::hardware_concurrency();
    FileWalk walk_;
    const std::function<Outcome(const File&)>& work_;
    const std::size_t mostWaiting_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::size_t, Outcome> waiting_;
    std::size_t taken_ = 0;
    std::size_t given_ = 0;
    bool isOver_ = false;
    std::vector<std::thread> workers_;
};

} // namespace

int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output)
{
    Pipeline pipeline(names, work);
    Progress progress;
    int status = nothing;
    for (std::size_t done = 1; const std::optional<Outcome> outcome = pipeline.next(); ++done) {
        if (!outcome->told.isEmpty() || !outcome->complaints.isEmpty())
            progress.clear();
        output.write(outcome->told);
        writeError(outcome->complaints);
        if (outcome->inTurn)
            outcome->inTurn();
        status = std::max(status, outcome->status);
        progress.show(done);
    }
    progress.clear();
    for (const QString& folder : pipeline.emptyFolders())
        writeError(complaint(folder, text("cli_144")));
    return status;
}

} // namespace workbench::command
