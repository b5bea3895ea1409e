#include "command/output_guard.h"

#include "command/file_kind.h"
#include "command/file_walk.h"
#include "window/languages.h"

#include <QFile>

#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace workbench::command {

namespace {

// Tells plain files from each other, whatever they are called.
struct FileIdentity
{
    dev_t device = 0;
    ino_t number = 0;

    bool operator==(const FileIdentity&) const = default;
};

// None of what is no plain file.
std::optional<FileIdentity> identityOf(const QString& name)
{
    struct stat found = {};
    const int status = name == QLatin1String("-") ? fstat(STDIN_FILENO, &found)
                                                  : stat(QFile::encodeName(name).constData(), &found);
    return status == 0 && S_ISREG(found.st_mode) ? std::optional(FileIdentity{found.st_dev, found.st_ino})
                                                 : std::nullopt;
}

bool isInput(const FileIdentity& output, const Call& call)
{
    FileWalk walk(call.files + call.tables + QStringList(call.preset));
    while (const std::optional<File> file = walk.next()) {
        if (identityOf(file->name) == output)
            return true;
    }
    return false;
}

// What the command writes of what trackers hold.
FileKind writtenBy(const Call& call)
{
    if (call.command == QLatin1String("set") || call.command == QLatin1String("apply"))
        return FileKind::Configuration;
    const QString& form = call.conversion.form;
    return form == QLatin1String("xml") || form == QLatin1String("tmi") ? FileKind::Telemetry
                                                                        : FileKind::Unknown;
}

} // namespace

QString whyNotReplaced(const Call& call)
{
    const bool isFile = !call.output.isEmpty() && call.output != QLatin1String("-");
    const std::optional<FileIdentity> output = isFile ? identityOf(call.output) : std::nullopt;
    if (!output)
        return {};
    if (isInput(*output, call))
        return text("cli_250");
    QFile file(call.output);
    const FileKind kind = file.open(QIODevice::ReadOnly) ? kindOf(file, call.output) : FileKind::Unknown;
    // Lines of text may begin as tachograph files do.
    const bool isPrecious =
        kind == FileKind::Configuration || kind == FileKind::Telemetry || kind == FileKind::Calibration;
    if (isPrecious && kind != writtenBy(call))
        return text("cli_266").arg(text(wordOf(kind)));
    // "-o *.tmi" takes the first file for the output, and the others would take its place.
    return kind == FileKind::Telemetry && call.files.size() > 1 ? text("cli_282") : QString();
}

} // namespace workbench::command
