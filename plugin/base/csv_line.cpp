#include "base/csv_line.h"

#include <algorithm>

namespace vlk {

QString csvCell(QString text, char separator)
{
    const bool isPlain = std::ranges::none_of(text, [separator](QChar sign) {
        return sign == QLatin1Char(separator) || sign == QLatin1Char('"') || sign < QLatin1Char(' ');
    });
    if (isPlain)
        return text;
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

QByteArray csvCell(const QByteArray& utf8, char separator)
{
    return csvCell(QString::fromUtf8(utf8), separator).toUtf8();
}

QString csvLine(const QStringList& cells, char separator)
{
    QStringList quoted;
    for (const QString& cell : cells)
        quoted << csvCell(cell, separator);
    return quoted.join(QLatin1Char(separator)) + QStringLiteral("\r\n");
}

} // namespace vlk
