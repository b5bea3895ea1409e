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
    const QString first = match.captured(2) + QLatin1Char(' ') + match.captured(3);
    const QString last = match.captured(2) == match.captured(4)
                             ? match.captured(5)
                             : match.captured(4) + QLatin1Char(' ') + match.captured(5);
    const QString times = QStringLiteral("%1 - %2").arg(first, last);
    const int leastOfVehicle = metrics.averageCharWidth() * 5;
    for (const QString& tail : {times + match.captured(6), times}) {
        const int left = room - metrics.horizontalAdvance(QLatin1Char(' ') + tail);
        if (left >= leastOfVehicle)
            return metrics.elidedText(match.captured(1), Qt::ElideRight, left) + QLatin1Char(' ') + tail;
    }
    return metrics.elidedText(times, Qt::ElideRight, room);
}

} // namespace workbench
