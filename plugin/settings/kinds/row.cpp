#include "settings/kinds/row.h"

#include "settings/kinds/spelling.h"

namespace vlk {

Caption captionParts(const char* key, const char* format, int number)
{
    QString text = QString::fromLatin1(format).arg(translated(key));
    if (number > 0)
        text.replace(QLatin1String("%1"), QString::number(number));
    const int mark = text.indexOf(QLatin1String("<val>"), 0, Qt::CaseInsensitive);
    if (mark < 0)
        return {text, {}};
    return {text.left(mark).trimmed(), text.mid(mark + 5).trimmed()};
}

QString inOneLine(QString caption)
{
    return caption.replace(QLatin1String("<br>"), QLatin1String(" ")).remove(QLatin1Char('&')).simplified();
}

} // namespace vlk
