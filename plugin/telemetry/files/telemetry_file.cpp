#include "telemetry/files/telemetry_file.h"

#include "base/replace_file.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_reader.h"
#include "telemetry/files/telemetry_xml_writer.h"

#include <QFile>
#include <QLoggingCategory>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcUnreadable, "vlk.files.unreadable")

bool write(QIODevice& device, TelemetryForm form, const RecordStore& records, const TelemetryOrigin& origin,
           const EventText& eventText)
{
    switch (form) {
    case TelemetryForm::xml:
        return writeTelemetryXml(device, records, origin);
    case TelemetryForm::csv:
        return writeTelemetryCsv(device, records, origin.titles, eventText);
    case TelemetryForm::binary:
        return writeTelemetryBinary(device, records, origin);
    }
    return false;
}

} // namespace

bool saveTelemetryFile(const QString& path, TelemetryForm form, const RecordStore& records,
                       const TelemetryOrigin& origin, const EventText& eventText)
{
    return replaceFile(path,
                       [&](QIODevice& device) { return write(device, form, records, origin, eventText); });
}

std::optional<TelemetryContents> readTelemetryFile(const QString& path, TelemetryReading reading)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcUnreadable).noquote().nospace() << path << ": " << file.errorString();
        return std::nullopt;
    }
    TelemetryReader reader(file, path, reading);
    while (reader.step()) {
    }
    return reader.take();
}

} // namespace vlk
