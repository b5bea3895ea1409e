#include "telemetry/view/value_width.h"

#include <QFontMetrics>

#include <cmath>

namespace vlk {

namespace {

QString longestNumber(const Rule& rule, const Element& element, int decimals)
{
    const bool isFloat = element.type == ValueType::f32;
    const int bits = rule.bits.count != 0 ? rule.bits.count : 8 * element.width;
    const double highest = isFloat ? 999'999 : std::pow(2, bits) - 1;
    return QLatin1String(isFloat || isSigned(element.type) ? "-" : "") +
           QString::number(highest * rule.times / rule.by, 'f', decimals);
}

QStringList longTexts(const Rule& rule, const Element& element)
{
    QStringList texts;
    switch (rule.shape) {
    case Shape::decimal:
    case Shape::userParameter:
        texts << longestNumber(rule, element, 0);
        break;
    case Shape::fixed:
        texts << longestNumber(rule, element, rule.decimals);
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
        texts << rule.set.text() << longestNumber(rule, element, 0);
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
    for (QString& text : texts)
        text += rule.unit ? QLatin1Char(' ') + rule.unit.text() : QString();
    if (rule.none.text)
        texts << rule.none.text.text();
    return rule.otherwise == nullptr ? texts : texts + longTexts(*rule.otherwise, element);
}

} // namespace

int widestText(const QFontMetrics& font, ItemIndex item)
{
    int widest = 0;
    for (const QString& text : longTexts(kItems[item].rule(), kElements[kItems[item].element]))
        widest = std::max(widest, font.horizontalAdvance(text));
    return widest;
}

} // namespace vlk
