#include "telemetry/view/stored_file.h"

#include <QFileInfo>
#include <QLoggingCategory>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcMissing, "vlk.files.missing")
Q_LOGGING_CATEGORY(lcClosed, "vlk.files.unreadable")
Q_LOGGING_CATEGORY(lcEmpty, "vlk.files.empty")

} // namespace

StoredFile::StoredFile(const QString& path, TelemetryReading reading) : file_(path)
{
    // What is no plain file may have no end, or wait for its first byte for ever.
    if (!QFileInfo(path).isFile())
        qCWarning(lcMissing).noquote().nospace() << path << ": there is no such file";
    else if (!file_.open(QIODevice::ReadOnly))
        qCWarning(lcClosed).noquote().nospace() << path << ": " << file_.errorString();
    else
        reader_.emplace(file_, path, reading);
}

TelemetryContents StoredFile::take()
{
    if (!reader_)
        return {};
    TelemetryContents contents = reader_->take();
    if (contents.records.empty())
        qCWarning(lcEmpty).noquote().nospace() << file_.fileName() << ": no record in it";
    return contents;
}

} // namespace vlk
