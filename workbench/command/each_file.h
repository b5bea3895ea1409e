#pragma once

// Many files on all cores: their outcomes come in the order of the files, and no more of them wait than the
// cores need. Where standard error is a terminal it shows how many are done.

#include "command/call.h"
#include "command/file_walk.h"
#include "command/in_order.h"
#include "command/output.h"
#include "command/progress.h"

#include <QSet>

#include <functional>
#include <mutex>

namespace workbench::command {

// Works on what `next` gives, in several threads at once; what outcomes do in turn they do in the calling
// one. Gives the greatest status.
template <class Item>
int workInTurn(std::function<std::optional<Item>()> next, std::function<Outcome(Item)> work, Output& output)
{
    InOrder<Item, Outcome> outcomes(std::move(next), std::move(work));
    Progress progress;
    int status = Nothing;
    for (std::size_t done = 1; const std::optional<Outcome> outcome = outcomes.take(); ++done) {
        if (!outcome->told.isEmpty())
            progress.clear();
        output.write(outcome->told);
        progress.writeError(outcome->complaints);
        if (outcome->inTurn)
            outcome->inTurn();
        status = std::max(status, outcome->status);
        progress.show(done);
    }
    progress.clear();
    return status;
}

// The folders of a call in which there was something for its command. Several threads may tell of files.
class FolderTally
{
public:
    void found(const File& file);
    // Complains of the others; `key` says what they lack. Gives failed where there is one.
    int tell(const FileWalk& walk, const char* key) const;

private:
    std::mutex mutex_;
    QSet<QString> found_;
};

// Works through the files of a call that are configurations, or whatever they are.
int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output);

} // namespace workbench::command
