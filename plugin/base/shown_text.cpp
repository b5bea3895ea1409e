#include "base/shown_text.h"

#include <QLocale>

namespace vlk {

QString yesNo(bool yes)
{
    return translated(yes ? "wrd_001" : "wrd_002");
}

QString numberText(double number, int decimals, char format)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, format, decimals);
}

QString withUnit(const QString& number, const char* unit)
{
    return unit ? number + QLatin1Char(' ') + translated(unit) : number;
}

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
