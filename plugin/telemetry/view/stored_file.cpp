#include "telemetry/view/stored_file.h"

#include "telemetry/files/telemetry_file.h"

#include <QFileInfo>
#include <QLoggingCategory>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcMissing, "vlk.files.missing")
Q_LOGGING_CATEGORY(lcEmpty, "vlk.files.empty")

} // namespace

TelemetryContents readStoredFile(const QString& path)
{
    // What is no plain file may have no end, or wait for its first byte for ever.
    if (!QFileInfo(path).isFile()) {
        qCWarning(lcMissing).noquote().nospace() << path << ": there is no such file";
        return {};
    }
    TelemetryContents contents = readTelemetryFile(path).value_or(TelemetryContents());
    if (contents.records.empty())
        qCWarning(lcEmpty).noquote().nospace() << path << ": no record in it";
    return contents;
}

} // namespace vlk
