#include "telemetry/text/item_text.h"

#include "telemetry/text/time_text.h"
#include "telemetry/text/user_parameter_text.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

struct Value
{
    std::uint64_t raw;    // the bytes
    std::int64_t integer; // with the sign of the type
    double number;
    ValueType type;
};

template <class Source>
Value readValue(const ElementValues<Source>& source, ElementIndex element)
{
    return {source.raw(element), source.integer(element), source.number(element), kElements[element].type};
}

bool testBit(std::uint64_t raw, int bit)
{
    return (raw >> bit & 1) != 0;
}

// A range of bits is an unsigned number of its own.
Value cutBits(const Value& value, BitRange bits)
{
    const std::uint64_t raw = value.raw >> bits.first & ((std::uint64_t{1} << bits.count) - 1);
    return {raw, static_cast<std::int64_t>(raw), static_cast<double>(raw), ValueType::u64};
}

double scaled(const Value& value, const Rule& rule)
{
    const double number = value.number * rule.times / rule.by;
    return rule.cut ? std::trunc(number) : number;
}

QString decimalText(const Value& value, const Rule& rule)
{
    if (rule.cut)
        return QString::number(static_cast<qint64>(scaled(value, rule)));
    return isSigned(value.type) ? QString::number(qint64{value.integer})
                                : QString::number(quint64{value.raw});
}

QString namedText(const Value& value, const Rule& rule)
{
    const auto covers = [&](const NamedValue& row) {
        return value.raw >= row.first && value.raw <= row.last;
    };
    if (const auto row = std::ranges::find_if(rule.names, covers); row != rule.names.end())
        return row->word.text();
    switch (rule.other) {
    case Other::word:
        return rule.set.text();
    case Other::wordAndNumber:
        return rule.set.text() + QLatin1String(": ") + decimalText(value, rule);
    case Other::number:
        break;
    }
    return decimalText(value, rule);
}

// Degrees and minutes each carry the sign; whole numbers, so that no digit is lost on the way.
QString coordinateText(const Value& value, const Rule& rule)
{
    const auto unitsPerDegree = static_cast<std::int64_t>(rule.by);
    const double minutes = static_cast<double>(value.integer % unitsPerDegree) * 60 / rule.by;
    return QString::number(qint64{value.integer / unitsPerDegree}) + QLatin1Char(' ') +
           QString::number(minutes, 'f', rule.decimals) + QLatin1Char('\'');
}

QString userText(const Value& value, ElementIndex element, const TextOptions& options)
{
    const std::size_t slot = kElements[element].field - field("User1Byte_1");
    const char letter = slot < options.userTypes.size() ? options.userTypes[slot] : 'u';
    return userParameterText(value.raw, kElements[element].width, letter);
}

QString shapeText(const Value& value, const Rule& rule, const Item& item, const TmiPage_Zeta3& page,
                  const TextOptions& options)
{
    const auto seconds = static_cast<quint32>(value.raw);
    switch (rule.shape) {
    case Shape::decimal:
        return decimalText(value, rule);
    case Shape::fixed:
        return QString::number(scaled(value, rule), 'f', rule.decimals);
    case Shape::general:
        return QString::number(scaled(value, rule), 'g', 6);
    case Shape::word:
        return rule.set.text();
    case Shape::twoState:
        return (testBit(value.raw, rule.bits.count == 0 ? item.bit : rule.bits.first) ? rule.set : rule.clear)
            .text();
    case Shape::enumeration:
        return namedText(value, rule);
    case Shape::zonedTime:
        return zonedTimeText(seconds, page.utcOffset());
    case Shape::localTime:
        return localTimeText(seconds);
    case Shape::dateTime:
        return dateTimeText(seconds);
    case Shape::coordinate:
        return coordinateText(value, rule);
    case Shape::userParameter:
        return userText(value, item.element, options);
    case Shape::special:
        break;
    }
    return rule.special(page);
}

QString valueText(const Value& whole, const Item& item, const TmiPage_Zeta3& page, const TextOptions& options)
{
    const Rule* rule = &item.rule();
    while (rule->when.bit != Condition::kNone && testBit(whole.raw, rule->when.bit) != rule->when.set) {
        rule = rule->otherwise;
        if (rule == nullptr)
            return {};
    }
    if (whole.integer == rule->none.code && rule->none.text)
        return rule->none.text.text();
    if (rule->negativeIsNone && whole.number < 0)
        return {};
    // A bit of two states counts from the whole value.
    const bool ranged = rule->bits.count != 0 && rule->shape != Shape::twoState;
    QString text = shapeText(ranged ? cutBits(whole, rule->bits) : whole, *rule, item, page, options);
    if (rule->unit)
        text += QLatin1Char(' ') + rule->unit.text();
    return text;
}

} // namespace

QString text(const TmiPage_Zeta3& page, ItemIndex index, const TextOptions& options)
{
    const Item& item = kItems[index];
    if (page.isExtra() && page.extra().find(item.element) != nullptr)
        return valueText(readValue(page.extra(), item.element), item, page, options);
    if (item.rule().always || page.has(item.element))
        return valueText(readValue<TmiPage_Zeta3::RecordValues>(page, item.element), item, page, options);
    return {};
}

} // namespace vlk
