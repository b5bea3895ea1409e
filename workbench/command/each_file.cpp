#include "command/each_file.h"

#include "command/in_order.h"
#include "window/languages.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
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

} // namespace

int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output)
{
    FileWalk walk(names);
    InOrder<File, Outcome> outcomes([&walk] { return walk.next(); }, work);
    Progress progress;
    int status = nothing;
    for (std::size_t done = 1; const std::optional<Outcome> outcome = outcomes.take(); ++done) {
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
    for (const QString& folder : walk.emptyFolders())
        writeError(complaint(folder, text("cli_144")));
    return status;
}

} // namespace workbench::command
