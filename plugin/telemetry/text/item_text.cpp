#include "telemetry/text/item_text.h"

#include "telemetry/text/time_text.h"
#include "telemetry/text/unit_word.h"
#include "telemetry/text/user_parameter_text.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

// The bytes of an element, or some bits of it.
struct Value
{
    std::uint64_t raw;
    ValueType type;

    std::int64_t integer() const { return integerOf(raw, type); }
    double number() const { return numberOf(raw, type); }
    bool testBit(int bit) const { return (raw >> bit & 1) != 0; }
};

// A range of bits is an unsigned number of its own.
Value cutBits(const Value& value, BitRange bits)
{
    return {value.raw >> bits.first & ((std::uint64_t{1} << bits.count) - 1), ValueType::U64};
}

double scaled(const Value& value, const Rule& rule, const Measure& measure)
{
    const double number = measure.of(value.number());
    return rule.cut ? std::trunc(number) : number;
}

void addDecimal(AsciiText& text, const Value& value, const Rule& rule, const Measure& measure)
{
    if (rule.cut)
        text << static_cast<std::int64_t>(scaled(value, rule, measure));
    else if (isSigned(value.type))
        text << value.integer();
    else
        text << value.raw;
}

void addNamed(TextParts& parts, const Value& value, const Rule& rule, const Measure& measure)
{
    const auto covers = [&](const NamedValue& row) {
        return value.raw >= row.first && value.raw <= row.last;
    };
    if (const auto row = std::ranges::find_if(rule.names, covers); row != rule.names.end()) {
        parts.word = &row->word;
        return;
    }
    if (rule.other != Other::Number)
        parts.word = &rule.set;
    if (rule.other == Other::WordAndNumber)
        parts.characters << ": ";
    if (rule.other != Other::Word)
        addDecimal(parts.characters, value, rule, measure);
}

// Degrees and minutes each carry the sign; whole numbers, so that no digit is lost on the way.
void addCoordinate(AsciiText& text, const Value& value, const Rule& rule, const Measure& measure)
{
    const auto unitsPerDegree = static_cast<std::int64_t>(measure.divisor);
    const double minutes = static_cast<double>(value.integer() % unitsPerDegree) * 60 / measure.divisor;
    text << value.integer() / unitsPerDegree << ' ';
    text.addFixed(minutes, rule.decimals) << '\'';
}

char userTypeOf(ElementIndex element, std::string_view userTypes)
{
    const std::size_t slot = kElements[element].field - field("User1Byte_1");
    return slot < userTypes.size() ? userTypes[slot] : 'u';
}

void addUserValue(AsciiText& text, const Value& value, ElementIndex element, const TextOptions& options)
{
    addUserParameter(text, value.raw, kElements[element].width, userTypeOf(element, options.userTypes));
}

qint32 shownOffset(const TextOptions& options)
{
    if (options.utcOffset)
        return *options.utcOffset;
    return options.zone ? options.zone->offsetNow() : localOffset();
}

void addShape(TextParts& parts, const Value& value, const Rule& rule, const Measure& measure,
              const Item& item, const TextOptions& options)
{
    const auto seconds = static_cast<quint32>(value.raw);
    const auto offsetThen = [&] {
        return options.zone ? options.zone->offsetAt(seconds) : LocalZone().offsetAt(seconds);
    };
    switch (rule.shape) {
    case Shape::Decimal:
        return addDecimal(parts.characters, value, rule, measure);
    case Shape::Fixed:
        parts.characters.addFixed(scaled(value, rule, measure), rule.decimals);
        return;
    case Shape::General:
        parts.characters.addGeneral(scaled(value, rule, measure));
        return;
    case Shape::Word:
        parts.word = &rule.set;
        return;
    case Shape::TwoState:
        parts.word =
            value.testBit(rule.bits.count == 0 ? item.bit : rule.bits.first) ? &rule.set : &rule.clear;
        return;
    case Shape::Enumeration:
        return addNamed(parts, value, rule, measure);
    case Shape::ZonedTime:
        return addZonedTime(parts.characters, seconds, shownOffset(options));
    case Shape::LocalTime:
        return addClockAndDate(parts.characters, seconds, offsetThen());
    case Shape::DateTime:
        return addDateAndClock(parts.characters, seconds, offsetThen());
    case Shape::Coordinate:
        return addCoordinate(parts.characters, value, rule, measure);
    case Shape::UserParameter:
        return addUserValue(parts.characters, value, item.element, options);
    case Shape::Special:
        return;
    }
}

// The rule that holds for a value; null if none does.
const Rule* ruleFor(const Item& item, const Value& whole)
{
    const Rule* rule = &item.rule();
    while (rule && rule->when.bit != Condition::kNone && whole.testBit(rule->when.bit) != rule->when.set)
        rule = rule->otherwise;
    return rule;
}

void addValue(TextParts& parts, const Value& whole, const Item& item, const TextOptions& options)
{
    const Rule* const rule = ruleFor(item, whole);
    if (!rule)
        return;
    const Measure& measure = measureOf(item, *rule);
    if (measure.noValue == whole.integer()) {
        parts.word = &rule->none;
        return;
    }
    if (measure.belowZeroIsNone && whole.number() < 0)
        return;
    // A bit of two states counts from the whole value.
    const bool ranged = rule->bits.count != 0 && rule->shape != Shape::TwoState;
    addShape(parts, ranged ? cutBits(whole, rule->bits) : whole, *rule, measure, item, options);
    if (rule->withUnit)
        parts.unit = rule->unit ? &rule->unit : &unitWord(measure.unit);
}

double userNumber(const Value& value, ElementIndex element, std::string_view userTypes)
{
    const int bytes = kElements[element].width;
    const char letter = userTypeOf(element, userTypes);
    if (letter == 'f' && bytes == 4)
        return std::bit_cast<float>(static_cast<quint32>(value.raw));
    if (letter == 'f' && bytes == 8)
        return std::bit_cast<double>(value.raw);
    const int unused = 64 - 8 * bytes;
    return letter == 's' ? static_cast<double>(static_cast<std::int64_t>(value.raw << unused) >> unused)
                         : value.number();
}

} // namespace

double itemNumber(std::uint64_t raw, ItemIndex index, std::string_view userTypes)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const Item& item = kItems[index];
    const Value whole{raw, kElements[item.element].type};
    const Rule* const rule = ruleFor(item, whole);
    if (!rule)
        return kNone;
    const Measure& measure = measureOf(item, *rule);
    if (measure.noValue == whole.integer() || (measure.belowZeroIsNone && whole.number() < 0))
        return kNone;
    if (rule->shape == Shape::TwoState)
        return whole.testBit(rule->bits.count == 0 ? item.bit : rule->bits.first) ? 1 : 0;
    const Value value = rule->bits.count != 0 ? cutBits(whole, rule->bits) : whole;
    switch (rule->shape) {
    case Shape::Fixed:
    case Shape::General:
        return scaled(value, *rule, measure);
    case Shape::Decimal:
        return rule->cut ? scaled(value, *rule, measure) : value.number();
    case Shape::Coordinate:
        return measure.of(value.number());
    case Shape::UserParameter:
        return userNumber(value, item.element, userTypes);
    default:
        return value.number();
    }
}

ItemNumbers::ItemNumbers(ItemIndex item, std::string_view userTypes)
    : item_(item), userTypes_(userTypes), type_(kElements[kItems[item].element].type)
{
    const Rule& rule = kItems[item].rule();
    const bool isPlain = rule.when.bit == Condition::kNone && rule.bits.count == 0 && !rule.cut;
    if (!isPlain || rule.shape == Shape::TwoState || rule.shape == Shape::UserParameter)
        return;
    measure_ = &measureOf(kItems[item], rule);
    isScaled_ = rule.shape == Shape::Fixed || rule.shape == Shape::General || rule.shape == Shape::Coordinate;
}

TextParts textParts(std::uint64_t raw, ItemIndex index, const TextOptions& options)
{
    const Item& item = kItems[index];
    TextParts parts;
    addValue(parts, {raw, kElements[item.element].type}, item, options);
    return parts;
}

TextParts textParts(const TmiPage_Zeta3& page, ItemIndex index, const TextOptions& options)
{
    const ElementIndex element = kItems[index].element;
    TextOptions ofPage = options;
    if (page.hasUtcOffset())
        ofPage.utcOffset = page.utcOffset();
    if (page.isExtra() && page.extra().find(element))
        return textParts(page.extra().raw(element), index, ofPage);
    return page.has(element) ? textParts(page.raw(element), index, ofPage) : TextParts();
}

QString text(const TmiPage_Zeta3& page, ItemIndex index, const TextOptions& options)
{
    const Item& item = kItems[index];
    const Rule& rule = item.rule();
    if (rule.shape == Shape::Special)
        return rule.always || page.has(item.element) ? rule.special(page) : QString();
    const TextParts parts = textParts(page, index, options);
    QString text = parts.word ? parts.word->text() : QString();
    if (!parts.characters.view().empty())
        text += parts.characters.string();
    if (parts.unit)
        text += QLatin1Char(' ') + parts.unit->text();
    return text;
}

} // namespace vlk
