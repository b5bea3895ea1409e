#include "window/short_file_name.h"

#include <QRegularExpression>

namespace workbench {

QString shortFileName(const QString& name, const QFontMetrics& metrics, int room)
{
    if (metrics.horizontalAdvance(name) <= room)
        return name;
    static const QRegularExpression period(
        QStringLiteral(R"(^(.*) (\d{4}-\d\d-\d\d) (\d\d-\d\d) - (\d{4}-\d\d-\d\d) (\d\d-\d\d)(.*)$)"));
    const QRegularExpressionMatch match = period.match(name);
    if (!match.hasMatch())
        return metrics.elidedText(name, Qt::ElideMiddle, room);
    const auto timesFrom = [&match](int dateAt) {
        const QString date = match.captured(2).mid(dateAt) + QLatin1Char(' ');
        const QString lastDate = match.captured(4).mid(dateAt) + QLatin1Char(' ');
        return date + match.captured(3) + QStringLiteral(" - ") + (date == lastDate ? QString() : lastDate) +
               match.captured(5);
    };
    const QString times = timesFrom(0);
    const QString timesOfYear = timesFrom(5);
    const QString vehicle = match.captured(1);
    for (const QString& tail : {times + match.captured(6), times, timesOfYear}) {
        const QString whole = vehicle + QLatin1Char(' ') + tail;
        if (metrics.horizontalAdvance(whole) <= room)
            return whole;
    }
    const int left = room - metrics.horizontalAdvance(QLatin1Char(' ') + timesOfYear);
    if (left >= metrics.averageCharWidth() * 5)
        return metrics.elidedText(vehicle, Qt::ElideMiddle, left) + QLatin1Char(' ') + timesOfYear;
    return metrics.elidedText(timesOfYear, Qt::ElideRight, room);
}

} // namespace workbench
