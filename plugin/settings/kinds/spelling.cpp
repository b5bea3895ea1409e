#include "settings/kinds/spelling.h"

#include <QLocale>

#include <array>
#include <charconv>

namespace vlk {

QString spelled(QLatin1String value, const QString& text)
{
    return text == value ? text : QString(value);
}

QString spelled(qint64 number, const QString& text)
{
    std::array<char, 20> digits{}; // "-9223372036854775808"
    const char* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return spelled(QLatin1String(digits.begin(), static_cast<int>(end - digits.begin())), text);
}

int digitAt(const QString& text, std::size_t position)
{
    const int index = static_cast<int>(position);
    return index < text.size() ? std::max(0, text[index].digitValue()) : 0;
}

bool isWholeNumber(const QString& text)
{
    bool whole = false;
    text.trimmed().toLongLong(&whole);
    return whole;
}

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
