#include "command/convert_inputs.h"

#include "command/configuration_input.h"
#include "command/file_kind.h"
#include "command/output.h"
#include "telemetry/files/telemetry_binary_reader.h"
#include "window/languages.h"

#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>

namespace workbench::command {

namespace {

// In a temporary file, at its beginning; none where that cannot be written.
std::unique_ptr<QFile> kept(QFile& input)
{
    auto file = std::make_unique<QTemporaryFile>();
    if (!file->open())
        return nullptr;
    for (;;) {
        const QByteArray piece = input.read(1 << 20);
        if (piece.isEmpty())
            break;
        if (file->write(piece) != piece.size())
            return nullptr;
    }
    file->seek(0);
    return file;
}

} // namespace

TelemetryInputs::TelemetryInputs(const QStringList& names)
{
    FileWalk walk(names);
    while (const std::optional<File> file = walk.next())
        take(*file);
    status_ = std::max(status_, folders_.tell(walk, "cli_295"));
}

void TelemetryInputs::take(const File& file)
{
    auto device = std::make_unique<QFile>(file.name);
    const bool isOpen =
        file.isStandardInput() ? device->open(stdin, QIODevice::ReadOnly) : device->open(QIODevice::ReadOnly);
    const bool isKept = isOpen && device->isSequential();
    if (isKept) {
        auto copy = kept(*device);
        if (device->error() != QFileDevice::NoError)
            return refuse(file, whyUnreadable(*device));
        device = std::move(copy);
    }
    if (!device)
        return refuse(file, text("cli_213"));
    const QByteArray start = isOpen ? device->peek(kBeginning) : QByteArray();
    if (!isOpen || (start.isEmpty() && device->error() != QFileDevice::NoError))
        return refuse(file, whyUnreadable(*device));
    const FileKind kind = kindOf(*device, file.name);
    // What has lost its beginning and is known by its records is of the binary form.
    const bool isXml = kindOf(start) == FileKind::Telemetry &&
                       !vlk::looksBinary(vlk::bytesAt(start.constData(), start.size()));
    if (kind == FileKind::Telemetry)
        add(file, isKept || file.isStandardInput() ? std::move(device) : nullptr, isXml);
    else if (file.isNamed || kind == FileKind::Unknown)
        refuse(file, text(isBlank(start) ? "cli_004" : "cli_212"));
}

void TelemetryInputs::add(const File& file, std::unique_ptr<QFile> device, bool isXml)
{
    folders_.found(file);
    files_.push_back({file, std::move(device), isXml});
}

void TelemetryInputs::refuse(const File& file, const QString& reason)
{
    folders_.found(file);
    writeError(complaint(file.name, reason));
    status_ = Failed;
}

} // namespace workbench::command
