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
        const auto moment = [&](int group) {
            return match.captured(group).mid(dateAt) + QLatin1Char(' ') + match.captured(group + 1);
        };
        const bool isOneDay = match.captured(2) == match.captured(4);
        return moment(2) + QStringLiteral(" - ") + (isOneDay ? match.captured(5) : moment(4));
    };
    const QString ending = match.captured(6);
    const QString times = timesFrom(0) + ending;
    const QString timesOfYear = timesFrom(5) + ending;
    const QString vehicle = match.captured(1);
    for (const QString& tail : {times, timesOfYear}) {
        QString whole = vehicle + QLatin1Char(' ') + tail;
        if (metrics.horizontalAdvance(whole) <= room)
            return whole;
    }
    const int left = room - metrics.horizontalAdvance(QLatin1Char(' ') + timesOfYear);
    if (left >= metrics.averageCharWidth() * 5)
        return metrics.elidedText(vehicle, Qt::ElideMiddle, left) + QLatin1Char(' ') + timesOfYear;
    return metrics.elidedText(timesOfYear, Qt::ElideMiddle, room);
}

} // namespace workbench
