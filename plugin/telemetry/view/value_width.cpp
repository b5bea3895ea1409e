#include "telemetry/view/value_width.h"

#include "telemetry/text/unit_word.h"

#include <QFontMetrics>

#include <cmath>

namespace vlk {

namespace {

QString longestNumber(const Item& item, const Rule& rule, int decimals)
{
    const Element& element = kElements[item.element];
    const bool isFloat = element.type == ValueType::f32;
    const int bits = rule.bits.count != 0 ? rule.bits.count : 8 * element.width;
    const double highest = isFloat ? 999'999 : std::pow(2, bits) - 1;
    return QLatin1String(isFloat || isSigned(element.type) ? "-" : "") +
           QString::number(measureOf(item, rule).of(highest), 'f', decimals);
}

QStringList longTexts(const Item& item, const Rule& rule)
{
    QStringList texts;
    switch (rule.shape) {
    case Shape::decimal:
    case Shape::userParameter:
        texts << longestNumber(item, rule, 0);
        break;
    case Shape::fixed:
        texts << longestNumber(item, rule, rule.decimals);
        break;
    case Shape::general:
        texts << QStringLiteral("-0.00000e+00");
        break;
    case Shape::word:
    case Shape::twoState:
        texts << rule.set.text() << rule.clear.text();
        break;
    case Shape::enumeration:
        for (const NamedValue& row : rule.names)
            texts << row.word.text();
        texts << rule.set.text() << longestNumber(item, rule, 0);
        break;
    case Shape::zonedTime:
        texts << QStringLiteral("00:00:00 00.00.0000 (UTC +00)");
        break;
    case Shape::localTime:
    case Shape::dateTime:
        texts << QStringLiteral("00:00:00 00.00.0000");
        break;
    case Shape::coordinate:
        texts << QStringLiteral("-000 -") + QString::number(59., 'f', rule.decimals) + QLatin1Char('\'');
        break;
    case Shape::special:
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
