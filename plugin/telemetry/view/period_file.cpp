#include "telemetry/view/period_file.h"

#include "base/file_name.h"
#include "telemetry/record/record_head.h"

namespace vlk {

QString periodFileName(const QString& vehicle, const QDateTime& first, const QDateTime& last)
{
    const auto text = [](const QDateTime& time) { return time.toString(QStringLiteral("yyyy-MM-dd hh-mm")); };
    return QStringLiteral("%1 %2 - %3")
        .arg(asFileName(vehicle, QStringLiteral("_")), text(first), text(last))
        .trimmed();
}

bool writePeriod(const QString& path, TelemetryForm form, const RecordBytes& records,
                 const TelemetryOrigin& origin, const EventText& eventText)
{
    RecordStore store;
    store.setUtcOffset(origin.timeOffset);
    for (const QByteArray& record : records)
        store.add(bytesAt(record.constData(), record.size()));
    return saveTelemetryFile(path, form, store, origin, eventText);
}

} // namespace vlk
