#include "telemetry/view/value_width.h"

#include "telemetry/text/unit_word.h"

#include <QFontMetrics>

#include <cmath>

namespace vlk {

namespace {

QString longestNumber(const Item& item, const Rule& rule, int decimals)
{
    const Element& element = kElements[item.element];
    const bool isFloat = element.type == ValueType::F32;
    const int bits = rule.bits.count != 0 ? rule.bits.count : 8 * element.width;
    const double highest = isFloat ? 999'999 : std::pow(2, bits) - 1;
    return QLatin1String(isFloat || isSigned(element.type) ? "-" : "") +
           QString::number(measureOf(item, rule).of(highest), 'f', decimals);
}

QStringList longTexts(const Item& item, const Rule& rule)
{
    QStringList texts;
    switch (rule.shape) {
    case Shape::Decimal:
    case Shape::UserParameter:
        texts << longestNumber(item, rule, 0);
        break;
    case Shape::Fixed:
        texts << longestNumber(item, rule, rule.decimals);
        break;
    case Shape::General:
        texts << QStringLiteral("-0.00000e+00");
        break;
    case Shape::Word:
    case Shape::TwoState:
        texts << rule.set.text() << rule.clear.text();
        break;
    case Shape::Enumeration:
        for (const NamedValue& row : rule.names)
            texts << row.word.text();
        texts << rule.set.text() << longestNumber(item, rule, 0);
        break;
    case Shape::ZonedTime:
        texts << QStringLiteral("00:00:00 00.00.0000 (UTC +00)");
        break;
    case Shape::LocalTime:
    case Shape::DateTime:
        texts << QStringLiteral("00:00:00 00.00.0000");
        break;
    case Shape::Coordinate:
        texts << QStringLiteral("-000 -") + QString::number(59., 'f', rule.decimals) + QLatin1Char('\'');
        break;
    case Shape::Special:
        texts << QStringLiteral("-00.000 | -00.000 | -00.000");
        break;
    }
    if (rule.withUnit) {
        const Word& unit = rule.unit ? rule.unit : unitWord(measureOf(item, rule).unit);
        for (QString& text : texts)
            text += QLatin1Char(' ') + unit.text();
    }
    texts << rule.none.text();
    return rule.otherwise ? texts + longTexts(item, *rule.otherwise) : texts;
}

} // namespace

int widestText(const QFontMetrics& font, ItemIndex item)
{
    int widest = 0;
    for (const QString& text : longTexts(kItems[item], kItems[item].rule()))
        widest = std::max(widest, font.horizontalAdvance(text));
    return widest;
}

} // namespace vlk
