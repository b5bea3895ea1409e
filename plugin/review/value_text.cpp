#include "review/value_text.h"

#include "base/number_text.h"

namespace vlk {

namespace {

// Without the sign behind it that tells that something follows.
QString bare(QString title)
{
    while (title.endsWith(QLatin1Char(':')) || title.endsWith(QChar(0x2026)))
        title.chop(1);
    return title;
}

// Fields that any position switches are a level and its temperature.
bool isHalfOn(const MaskField& field, const QString& part)
{
    return field.anyReads && part.contains(QLatin1Char('0')) && part.contains(QLatin1Char('1'));
}

// Kinds whose values are told in words of their own; those of any other kind are told as they stand, with
// their unit. A function here whose parameters are not those of the call below is unused, and does not
// compile.
QString told(const Flag&, const QString& value, const char* /*unit*/)
{
    return yesNo(value != QLatin1String("0"));
}

QString told(const Number& row, const QString& value, const char* unit)
{
    if (row.zeroIsOff && value == QLatin1String("0"))
        return yesNo(false);
    return row.hexadecimal ? value : withUnit(numberText(shownNumber(row, value), row.decimals), unit);
}

// Nothing is told of an address without a digit, although its signs stand in the file.
QString told(const Text& row, const QString& value, const char* /*unit*/)
{
    const bool isEmpty =
        row.mask && std::ranges::none_of(value, [](QChar sign) { return sign.isLetterOrNumber(); });
    return isEmpty ? QString() : value;
}

QString told(const Choice& row, const QString& value, const char* /*unit*/)
{
    for (const Code& code : row.codes) {
        // In their list numbers of one digit stand below those of two.
        if (QLatin1String(code.code) == value && *code.label)
            return codeText(code).replace(QLatin1String("  "), QLatin1String(" "));
    }
    return value;
}

QString told(const Period& row, const QString& value, const char* /*unit*/)
{
    QStringList parts;
    int seconds = value.toInt();
    for (const PeriodPart& part : row.parts) {
        const int count = std::min(seconds / part.seconds, part.most);
        seconds -= count * part.seconds;
        if (count > 0)
            parts << withUnit(QString::number(count), part.unit);
    }
    return parts.isEmpty() ? withUnit(QStringLiteral("0"), row.parts.back().unit)
                           : parts.join(QLatin1Char(' '));
}

// The captions of the positions that are set, with the item where a position has several.
QString told(const Digits& row, const QString& value, const char* /*unit*/)
{
    QStringList parts;
    for (std::size_t i = 0; i < row.positions.size(); ++i) {
        const int digit = digitAt(value, i);
        if (digit == 0)
            continue;
        QString part = translated(row.positions[i].caption);
        if (static_cast<std::size_t>(digit) < row.items.size())
            part += QStringLiteral(": ") + codeText(row.items[digit]);
        parts << part;
    }
    return parts.isEmpty() ? yesNo(false) : parts.join(QStringLiteral(", "));
}

QString told(const Mask& row, const QString& value, const char* /*unit*/)
{
    QStringList parts;
    for (const MaskField& field : row.fields) {
        const QString part = maskPart(field, value);
        const bool isPlain = maskItem(field, part) < 0 && !isHalfOn(field, part);
        if (part.contains(QLatin1Char('1')))
            parts << (isPlain ? fieldText(field)
                              : fieldText(field) + QStringLiteral(": ") + fieldValueText(field, part));
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

QString captionText(const Setting& setting)
{
    const Shown* shown = setting.shown();
    const Caption parts = captionParts(shown ? shown->captionKey : nullptr,
                                       shown ? shown->captionFormat : "%1", setting.base().numbers.outer);
    return bare(
        inOneLine(parts.after.isEmpty() ? parts.before : parts.before + QStringLiteral(" … ") + parts.after));
}

QString headingText(const Setting& setting)
{
    const Numbers numbers = setting.base().numbers;
    QString text;
    for (const Heading* heading = setting.base().heading; heading && *heading->title;
         heading = heading->above) {
        const QString title = QString::fromLatin1(heading->format)
                                  .replace(QLatin1String("%3"), QString::number(numbers.inner))
                                  .replace(QLatin1String("%2"), QString::number(numbers.outer))
                                  .replace(QLatin1String("%1"), bare(inOneLine(translated(heading->title))));
        text = text.isEmpty() ? title : title + QStringLiteral(" / ") + text;
    }
    return text;
}

QString fieldValueText(const MaskField& field, const QString& part)
{
    if (const int item = maskItem(field, part); item >= 0)
        return codeText(field.items[item]);
    if (isHalfOn(field, part))
        return translated(part.startsWith(QLatin1Char('1')) ? "rev_353" : "rev_354");
    return yesNo(isMaskOn(field, part));
}

QString codeText(const Code& code)
{
    const QString text = QString::fromLatin1(code.format).arg(captionParts(code.label).before);
    return code.second ? text.arg(translated(code.second)) : text;
}

QStringList codeTexts(const Setting& setting, const char* codes)
{
    QStringList texts;
    const auto* choice = setting.as<Choice>();
    for (const Code& code : choice ? choice->codes : std::span<const Code>()) {
        if (code.offered && isListed(codes, QLatin1String(code.code)))
            texts << codeText(code);
    }
    return texts;
}

QString valueText(const Setting& setting, const QString& value, const char* unit)
{
    return std::visit(
        [&](const auto& row) {
            if constexpr (requires { told(row, value, unit); })
                return told(row, value, unit);
            else
                return withUnit(value, unit);
        },
        setting.kind);
}

QString valueText(const Values& values, int row)
{
    return valueText(values, row, values.value(row));
}

QString valueText(const Values& values, int row, const QString& value)
{
    if (values.row(row).base->secret && !value.isEmpty())
        return QString::fromUtf8(kSecretDots);
    return valueText(values.setting(values.holder(row)), value, values.unitKey(row));
}

} // namespace vlk
