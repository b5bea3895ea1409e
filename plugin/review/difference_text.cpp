#include "review/difference_text.h"

#include "base/csv_line.h"
#include "base/number_text.h"
#include "base/shown_text.h"
#include "review/value_text.h"
#include "settings/quick_settings.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace vlk::review {

namespace {

// Some keys quick setup alone reads and writes.
const char* noteOnLost(const Difference& difference)
{
    if (difference.key >= 0)
        return "rev_004";
    return layoutOf(kQuickSettings).rowAt(difference.path) < 0 ? "rev_003" : "rev_299";
}

// A text that a load would change, so that the change can be seen.
QString rawText(const Setting& setting, const QString& text, const char* unit)
{
    const bool isWhole = isWholeNumber(text);
    if (setting.is<Period>() && isWhole)
        return withUnit(text, "abbr_003");
    const Number* number = setting.number();
    if (!number || number->hexadecimal || !(isWhole || number->isText))
        return text;
    return withUnit(number->isText ? text : numberText(shownNumber(*number, text), 10, 'g'), unit);
}

QString partText(const QString& caption, const QString& value)
{
    const QString bare = caption.startsWith(QLatin1String("- ")) ? caption.mid(2) : caption;
    return inOneLine(bare) + QStringLiteral(": ") + value;
}

bool hasMaskDigits(const QString& text)
{
    static const QRegularExpression digits(QStringLiteral("^[01]+$"));
    return digits.match(text).hasMatch();
}

// How many positions of a mask are on that no field has.
int foreignFields(const Mask& row, const QString& text)
{
    auto count = text.count(QLatin1Char('1'));
    for (const MaskField& field : row.fields)
        count -= maskPart(field, text).count(QLatin1Char('1'));
    return count;
}

// Those of the parts that differ from `other`.
QStringList parts(const Mask& row, const QString& text, const QString& other)
{
    QStringList told;
    for (const MaskField& field : row.fields) {
        const QString part = maskPart(field, text);
        if (part == maskPart(field, other))
            continue;
        told << partText(fieldText(field), fieldValueText(field, part));
    }
    return told;
}

QStringList parts(const Digits& row, const QString& text, const QString& other)
{
    QStringList told;
    for (std::size_t i = 0; i < row.positions.size(); ++i) {
        const int digit = digitAt(text, i);
        if (digit == digitAt(other, i) || !row.positions[i].widget)
            continue;
        const bool isListed = static_cast<std::size_t>(digit) < row.items.size();
        const Code* item = isListed ? &row.items[digit] : nullptr;
        told << partText(translated(row.positions[i].caption),
                         item && *item->label ? codeText(*item) : yesNo(digit != 0));
    }
    return told;
}

// An address without a digit leaves the signs between them.
QString withoutEmptyAddress(const QString& text)
{
    const bool isEmpty = !text.isEmpty() && text.count(QLatin1Char(':')) == text.size();
    return isEmpty ? QStringLiteral("") : text;
}

// An empty one hides nothing.
void mask(DifferenceText* text)
{
    for (const auto& [value, shown] :
         {std::pair(&text->before, &text->beforeText), std::pair(&text->after, &text->afterText)}) {
        if (!value->isEmpty())
            *value = *shown = QString::fromUtf8(kSecretDots);
    }
}

// A rule may give it by another setting, of which the side before has a value of its own.
const char* unitBefore(const FileState& before, const Values& values, int table, int row)
{
    const std::vector<const RangeWhen*>& rules = values.row(values.holder(row)).ranges;
    if (std::ranges::none_of(rules, [](const RangeWhen* rule) { return rule->unit; }))
        return values.unitKey(row);
    std::vector<QString> held = values.held();
    for (const RangeWhen* rule : rules) {
        const int decider = rule->when.row < 0 ? -1 : values.holder(rule->when.row);
        const int key = rule->unit && decider >= 0 ? FileKeys::all().of(table, decider) : -1;
        if (key >= 0 && before.at(key).isThere)
            held[decider] = before.at(key).meaning;
    }
    Values asBefore = values;
    asBefore.putBack(held);
    return asBefore.unitKey(row);
}

// What stands above the settings of the full window in the same element; empty where there are none.
QString groupBeside(const QString& path)
{
    const QString element = path.section(QLatin1Char('/'), 0, -2, QString::SectionIncludeTrailingSep);
    const FileKeys& keys = FileKeys::all();
    for (int key = 0; key < keys.count(); ++key) {
        if (!keys[key].path.startsWith(element))
            continue;
        const SettingWords words = wordsOf(keys.layout(keys[key].table), keys[key].rows.front());
        if (!words.group.isEmpty() && words.group != words.page)
            return words.group;
    }
    return {};
}

} // namespace

const char* noteKey(const Difference& difference)
{
    if (difference.before.isNull())
        return difference.byLoad ? "rev_001" : "rev_002";
    if (difference.after.isNull())
        return difference.byLoad ? noteOnLost(difference) : "rev_005";
    if (!difference.byLoad)
        return nullptr;
    switch (difference.change) {
    case Change::NotANumber:
        return "rev_006";
    case Change::OutOfRange:
        return "rev_007";
    case Change::Wrapped:
        return "rev_008";
    case Change::Rounded:
        return "rev_009";
    case Change::TooLong:
        return "rev_010";
    case Change::UnknownCode:
        return "rev_011";
    case Change::NotOffered:
        return "rev_012";
    case Change::ByRule:
        return "rev_013";
    case Change::NotCarried:
        return "rev_021";
    case Change::Completed:
        return "rev_355";
    case Change::None:
    case Change::Missing:
    case Change::OtherForm:
    case Change::LooseForm:
        break;
    }
    return nullptr;
}

QString textBeside(const Setting& setting, const Held& held, const std::vector<Held>& others,
                   const char* unit)
{
    if (!held.isThere)
        return {};
    QStringList told;
    if (!held.isWhole) {
        const auto* row = setting.as<Mask>();
        if (!row || !hasMaskDigits(held.text))
            return rawText(setting, held.text, unit);
        if (const int foreign = foreignFields(*row, held.text); foreign > 0)
            told << translated("rev_297").arg(foreign);
    }
    for (const Held& other : others) {
        if (!other.isThere)
            continue;
        if (const auto* mask = setting.as<Mask>())
            told += parts(*mask, held.meaning, other.meaning);
        else if (const auto* digits = setting.as<Digits>())
            told += parts(*digits, held.meaning, other.meaning);
    }
    told.removeDuplicates();
    return told.isEmpty() ? valueText(setting, held.meaning, unit) : told.join(QStringLiteral(", "));
}

DifferenceText textOf(const Differences& differences, const Difference& difference, const Values& values,
                      Secrets secrets)
{
    if (difference.key < 0)
        return textOf(difference, secrets);
    DifferenceText text;
    static_cast<SettingWords&>(text) = wordsOf(values.layout(), difference.row);
    text.before = difference.before;
    text.after = difference.after;
    const Setting& setting = values.setting(values.holder(difference.row));
    const char* unit = values.unitKey(difference.row);
    const Held& before = differences.before().at(difference.key);
    const Held& after = differences.after().at(difference.key);
    text.beforeText = textBeside(
        setting, before, {after},
        unitBefore(differences.before(), values, FileKeys::all()[difference.key].table, difference.row));
    text.afterText = textBeside(setting, after, {before}, unit);
    if (values.row(difference.row).base->secret && secrets == Secrets::Masked)
        mask(&text);
    text.note = translated(noteKey(difference));
    return text;
}

DifferenceText textOf(const Difference& difference, Secrets secrets)
{
    DifferenceText text;
    const FileKeys& keys = FileKeys::all();
    for (int table = 0; table < keys.tables(); ++table) {
        if (difference.path.startsWith(keys.layout(table).prefix()))
            text.page = inOneLine(translated(keys.layout(table).table->title));
    }
    // The quick window writes some keys that no setting of the full one reads.
    const TableLayout& quick = layoutOf(kQuickSettings);
    const int row = quick.rowAt(difference.path);
    if (row >= 0) {
        const SettingWords words = wordsOf(quick, row);
        const QString group = groupBeside(difference.path);
        text.group = group.isEmpty() ? words.group : group;
        text.caption = words.caption;
    } else {
        text.group = difference.path.section(QLatin1Char('/'), 0, -2);
        text.caption = difference.path.section(QLatin1Char('/'), -1);
    }
    text.before = difference.before;
    text.after = difference.after;
    for (const auto& [told, value] :
         {std::pair(&text.beforeText, &text.before), std::pair(&text.afterText, &text.after)}) {
        const Setting* setting = row < 0 ? nullptr : quick.rows[row].setting;
        const bool isChoice = setting && (setting->is<Choice>() || setting->is<Flag>());
        *told = isChoice ? valueText(*setting, *value, nullptr) : withoutEmptyAddress(*value);
        // Empty is a value of its own: no other device on the line.
        if (row >= 0 && !value->isNull() && value->isEmpty())
            *told = translated("rev_753");
    }
    if (keys.looksSecret(difference.path) && secrets == Secrets::Masked)
        mask(&text);
    text.note = translated(noteKey(difference));
    return text;
}

QString toCsv(const std::vector<DifferenceText>& texts, const QString& before, const QString& after)
{
    QString csv = csvLine({translated("rev_101"), translated("rev_015"), translated("rev_016"), before, after,
                           translated("rev_019")});
    for (const DifferenceText& text : texts)
        csv += csvLine({text.page, text.group, text.caption, text.beforeText, text.afterText, text.note});
    return csv;
}

} // namespace vlk::review
