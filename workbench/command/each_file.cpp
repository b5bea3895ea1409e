#include "command/each_file.h"

#include "command/interruption.h"
#include "window/languages.h"

namespace workbench::command {

void FolderTally::found(const File& file)
{
    if (file.isNamed)
        return;
    const std::lock_guard lock(mutex_);
    found_.insert(file.folder);
}

int FolderTally::tell(const FileWalk& walk, const char* key) const
{
    int status = Nothing;
    for (const QString& folder : walk.folders()) {
        if (found_.contains(folder))
            continue;
        writeError(complaint(folder, text(walk.emptyFolders().contains(folder) ? "cli_144" : key)));
        status = Failed;
    }
    return status;
}

int eachFile(const QStringList& names, const std::function<Outcome(const File&)>& work, Output& output)
{
    FileWalk walk(names);
    FolderTally folders;
    const auto workAndTell = [&](const File& file) {
        Outcome outcome = work(file);
        if (!outcome.isPassedOver)
            folders.found(file);
        return outcome;
    };
    const auto next = [&walk] { return isInterrupted() ? std::nullopt : walk.next(); };
    const int status = workInTurn<File>(next, workAndTell, output);
    if (!isInterrupted())
        return std::max(status, folders.tell(walk, "cli_294"));
    if (walk.next())
        writeError(complaint(QStringLiteral("r7106"), text("cli_361")));
    return status;
}

} // namespace workbench::command
