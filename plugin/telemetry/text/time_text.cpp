#include "telemetry/text/time_text.h"

namespace vlk {

namespace {

const QString kClockAndDate = QStringLiteral("hh:mm:ss dd.MM.yyyy");

QString zoneText(qint32 utcOffset)
{
    if (utcOffset == 0)
        return QStringLiteral("(UTC)");
    const QLatin1String sign(utcOffset > 0 ? "+" : "");
    return QLatin1String("(UTC ") + sign + QString::number(utcOffset / 3600) + QLatin1Char(')');
}

} // namespace

QString zonedTimeText(quint32 seconds, qint32 utcOffset)
{
    const auto shifted = QDateTime::fromSecsSinceEpoch(qint64{seconds} + utcOffset, Qt::UTC);
    return shifted.toString(kClockAndDate) + QLatin1Char(' ') + zoneText(utcOffset);
}

QString localTimeText(quint32 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds).toString(kClockAndDate);
}

QString dateTimeText(quint32 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("dd.MM.yyyy H:mm:ss"));
}

} // namespace vlk
