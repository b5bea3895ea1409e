#include "telemetry/view/period_file.h"

#include "base/file_name.h"
#include "telemetry/record/record_head.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace vlk {

QString periodFileName(const QString& vehicle, const QDateTime& first, const QDateTime& last)
{
    const auto text = [](const QDateTime& time) { return time.toString(QStringLiteral("yyyy-MM-dd hh-mm")); };
    return QStringLiteral("%1 %2 - %3")
        .arg(asFileName(vehicle, QStringLiteral("_")), text(first), text(last))
        .trimmed();
}

QString vehicleOfFile(const QString& path)
{
    static const QRegularExpression period(
        QStringLiteral(R"((^|\s+)\d{4}-\d\d-\d\d \d\d-\d\d - \d{4}-\d\d-\d\d \d\d-\d\d\b.*$)"));
    return QFileInfo(path).completeBaseName().remove(period).trimmed();
}

TelemetryContents periodOf(const RecordBytes& records, const TelemetryOrigin& origin)
{
    TelemetryContents period;
    period.origin = origin;
    period.records.setUtcOffset(origin.timeOffset);
    for (const QByteArray& record : records)
        period.records.add(bytesAt(record.constData(), record.size()));
    return period;
}

} // namespace vlk
