#include "telemetry/files/telemetry_file.h"

#include "base/replace_file.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_xml_writer.h"

namespace vlk {

namespace {

bool write(QIODevice& device, TelemetryForm form, const RecordStore& records, const TelemetryOrigin& origin,
           const EventText& eventText)
{
    switch (form) {
    case TelemetryForm::Xml:
        return writeTelemetryXml(device, records, origin);
    case TelemetryForm::Csv:
        return writeTelemetryCsv(device, records, origin.titles, eventText);
    case TelemetryForm::Binary:
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

} // namespace vlk
