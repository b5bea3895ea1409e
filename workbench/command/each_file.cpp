#include "command/each_file.h"

#include "command/in_order.h"
#include "command/progress.h"
#include "window/languages.h"

#include <algorithm>

namespace workbench::command {

int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output)
{
    FileWalk walk(names);
    InOrder<File, Outcome> outcomes([&walk] { return walk.next(); }, work);
    Progress progress;
    int status = nothing;
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
    for (const QString& folder : walk.emptyFolders())
        writeError(complaint(folder, text("cli_144")));
    return status;
}

} // namespace workbench::command
