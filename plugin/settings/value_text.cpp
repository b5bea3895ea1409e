#include "settings/value_text.h"

#include <QCoreApplication>

#include <algorithm>

namespace vlk {

namespace {

QString translated(const char* key)
{
    return key && *key ? QCoreApplication::translate("vlk", key) : QString();
}

QString withUnit(const QString& number, const char* unit)
{
    return unit ? number + QLatin1Char(' ') + translated(unit) : number;
}

QString yesNo(bool yes)
{
    return translated(yes ? "wrd_001" : "wrd_002");
}

QString periodText(const Setting& setting, int seconds)
{
    QStringList parts;
    for (const PeriodPart& part : setting.parts) {
        const int count = std::min(seconds / part.seconds, part.most);
        seconds -= count * part.seconds;
        if (count > 0)
            parts << withUnit(QString::number(count), part.unit);
    }
    return parts.isEmpty() ? withUnit(QStringLiteral("0"), setting.parts.back().unit)
                           : parts.join(QLatin1Char(' '));
}

QString maskText(const Setting& setting, const QString& value)
{
    QStringList parts;
    for (const MaskField& field : setting.fields) {
        const QString part = maskPart(field, value);
        const int item = maskItem(field, part);
        if (part.contains(QLatin1Char('1')))
            parts << (item < 0 ? fieldText(field)
                               : fieldText(field) + QStringLiteral(": ") + codeText(field.items[item]));
    }
    return setting.fields.empty() ? value : parts.join(QStringLiteral(", "));
}

// The captions of the positions that are set, with the item where a position has several.
QString positionsText(const Setting& setting, const QString& value)
{
    QStringList parts;
    for (std::size_t i = 0; i < setting.positions.size(); ++i) {
        const int digit = digitAt(value, i);
        if (digit == 0)
            continue;
        QString part = translated(setting.positions[i].caption);
        if (static_cast<std::size_t>(digit) < setting.codes.size())
            part += QStringLiteral(": ") + codeText(setting.codes[digit]);
        parts << part;
    }
    return parts.isEmpty() ? yesNo(false) : parts.join(QStringLiteral(", "));
}

} // namespace

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

QString captionText(const Setting& setting)
{
    const Caption parts = captionParts(setting.captionKey, setting.captionFormat, setting.number);
    return inOneLine(parts.after.isEmpty() ? parts.before
                                           : parts.before + QStringLiteral(" … ") + parts.after);
}

QString codeText(const Code& code)
{
    const QString text = QString::fromLatin1(code.format).arg(captionParts(code.label).before);
    return code.second ? text.arg(translated(code.second)) : text;
}

QString fieldText(const MaskField& field)
{
    const QString text = QString::fromLatin1(field.format).arg(translated(field.caption));
    return field.number > 0 ? text.arg(field.number) : text;
}

QString valueText(const Values& values, int row)
{
    return valueText(values, row, values.value(row));
}

QString valueText(const Values& values, int row, const QString& value)
{
    const Setting& setting = values.setting(values.holder(row));
    switch (setting.kind) {
    case Kind::flag:
        return yesNo(value != QLatin1String("0"));
    case Kind::integer:
    case Kind::real:
    case Kind::scaled:
        if (setting.zeroIsOff && value == QLatin1String("0"))
            return yesNo(false);
        if (setting.hexadecimal)
            return value;
        return withUnit(QString::number(shownNumber(setting, value), 'f', setting.decimals),
                        values.unitKey(row));
    case Kind::choice:
        for (const Code& code : setting.codes) {
            if (QLatin1String(code.code) == value && *code.label)
                return codeText(code);
        }
        return value;
    case Kind::period:
        return periodText(setting, value.toInt());
    case Kind::digits:
        return positionsText(setting, value);
    case Kind::mask:
        return maskText(setting, value);
    default:
        return value;
    }
}

} // namespace vlk
