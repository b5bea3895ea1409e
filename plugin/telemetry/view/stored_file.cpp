#include "telemetry/view/stored_file.h"

#include "telemetry/files/telemetry_file.h"

#include <QFileInfo>
#include <QLoggingCategory>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcTelemetry, "vlk.telemetry")

} // namespace

TelemetryContents readStoredFile(const QString& path)
{
    // What is no plain file may have no end, or wait for its first byte for ever.
    if (!QFileInfo(path).isFile()) {
        qCWarning(lcTelemetry).noquote() << "nothing to show: there is no file" << path;
        return {};
    }
    TelemetryContents contents = readTelemetryFile(path).value_or(TelemetryContents());
    if (contents.pages.empty())
        qCWarning(lcTelemetry).noquote() << "nothing to show: no record in" << path;
    return contents;
}

} // namespace vlk
