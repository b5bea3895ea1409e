#include "telemetry/view/period_file.h"

#include "base/file_name.h"

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
    TelemetryPages pages;
    pages.reserve(records.size());
    for (const QByteArray& record : records) {
        pages.push_back(std::make_unique<TmiPage_Zeta3>(record.constData(), record.size()));
        pages.back()->setUtcOffset(origin.timeOffset);
    }
    return saveTelemetryFile(path, form, pages, origin, eventText);
}

} // namespace vlk
