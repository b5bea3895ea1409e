#include "command/each_file.h"

#include "window/languages.h"

namespace workbench::command {

int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output)
{
    FileWalk walk(names);
    const int status = workInTurn<File>([&walk] { return walk.next(); }, work, output);
    tellEmpty(walk);
    return status;
}

void tellEmpty(const FileWalk& walk)
{
    for (const QString& folder : walk.emptyFolders())
        writeError(complaint(folder, text("cli_144")));
}

} // namespace workbench::command
