#include "telemetry/files/telemetry_file.h"

#include "base/replace_file.h"
#include "telemetry/files/telemetry_binary_reader.h"
#include "telemetry/files/telemetry_binary_writer.h"
#include "telemetry/files/telemetry_xml_reader.h"
#include "telemetry/files/telemetry_xml_writer.h"
#include "telemetry/record/record_head.h"

#include <QFile>
#include <QLoggingCategory>

namespace vlk {

namespace {

Q_LOGGING_CATEGORY(lcUnreadable, "vlk.files.unreadable")

// By FileDamage::Kind.
const QLoggingCategory& damageLog(FileDamage::Kind kind)
{
    static const QLoggingCategory logs[] = {
        QLoggingCategory("vlk.files.form"),     QLoggingCategory("vlk.files.header"),
        QLoggingCategory("vlk.files.damage"),   QLoggingCategory("vlk.files.cut"),
        QLoggingCategory("vlk.files.checksum"), QLoggingCategory("vlk.files.count")};
    return logs[kind];
}

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

// By the first bytes; where they say nothing, by the name.
bool isBinary(QFile& file)
{
    const QByteArray start = file.peek(8);
    if (looksBinary(bytesAt(start.constData(), start.size())))
        return true;
    return !start.startsWith('<') && file.fileName().endsWith(QLatin1String(".tmi"), Qt::CaseInsensitive);
}

} // namespace

bool saveTelemetryFile(const QString& path, TelemetryForm form, const RecordStore& records,
                       const TelemetryOrigin& origin, const EventText& eventText)
{
    return replaceFile(path,
                       [&](QIODevice& device) { return write(device, form, records, origin, eventText); });
}

std::optional<TelemetryContents> readTelemetryFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcUnreadable).noquote().nospace() << path << ": " << file.errorString();
        return std::nullopt;
    }
    TelemetryContents contents = isBinary(file) ? readTelemetryBinary(file) : readTelemetryXml(file);
    for (const FileDamage& damage : contents.damages)
        qCWarning(damageLog(damage.kind)).noquote().nospace() << path << ": " << text(damage);
    return contents;
}

} // namespace vlk
