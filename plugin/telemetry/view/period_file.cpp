#include "telemetry/view/period_file.h"

#include "base/save_log.h"
#include "base/whole_file.h"

#include <QRegularExpression>

namespace vlk {

QString periodFileName(const QString& vehicle, const QDateTime& first, const QDateTime& last)
{
    // A vehicle's name is free text; a file name is not.
    static const QRegularExpression forbidden(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]"));
    const auto text = [](const QDateTime& time) { return time.toString(QStringLiteral("yyyy-MM-dd hh-mm")); };
    return QStringLiteral("%1 %2 - %3")
        .arg(QString(vehicle).replace(forbidden, QStringLiteral("_")), text(first), text(last))
        .trimmed();
}

bool writePeriod(const QString& path, PeriodWriter write, const RecordBytes& records,
                 const TelemetryOrigin& origin)
{
    TelemetryPages pages;
    pages.reserve(records.size());
    for (const QByteArray& record : records) {
        pages.push_back(std::make_unique<TmiPage_Zeta3>(record.constData(), record.size()));
        pages.back()->setUtcOffset(origin.timeOffset);
    }
    QSaveFile file(path);
    QString reason;
    const bool saved = saveWhole(
        file, [&](QIODevice& device) { return write(device, pages, origin); }, &reason);
    if (!saved)
        qCWarning(lcSave).noquote() << path + QLatin1String(": ") + reason;
    return saved;
}

} // namespace vlk
