#include "review/advice.h"

#include "review/advice_facts.h"
#include "review/advice_rules.h"

#include "base/number_text.h"
#include "review/value_text.h"
#include "settings/all_settings.h"
#include "settings/quick_settings.h"

#include <algorithm>

namespace vlk::review {

namespace advice {

namespace {

bool isZero(const QString& value)
{
    return value.isEmpty() || value == QLatin1String("0");
}

bool isMet(const BoundCondition& bound, const QString& value, Numbers numbers, const Facts& facts)
{
    using Test = Condition::Test;
    const Condition& condition = *bound.condition;
    const auto isBelow = [&] {
        return value.toDouble() < (condition.other ? facts.value(bound.other).toDouble() : condition.number);
    };
    switch (condition.test) {
    case Test::Nothing:
        return true;
    case Test::On:
        return !isZero(value);
    case Test::Off:
        return isZero(value);
    case Test::OneOf:
        return isListed(condition.text, value);
    case Test::NoneOf:
        return !isListed(condition.text, value);
    case Test::Numbered:
        return value.toInt() == numbers.inner;
    case Test::Same:
        return value.trimmed().compare(facts.value(bound.other).trimmed(), Qt::CaseInsensitive) == 0;
    case Test::Like:
        return bound.pattern.match(value).hasMatch();
    case Test::Unlike:
        return !bound.pattern.match(value).hasMatch();
    case Test::Below:
        return isBelow();
    case Test::NotBelow:
        return !isBelow();
    case Test::DigitOn:
        return digitAt(value, static_cast<std::size_t>(bound.position)) != 0;
    case Test::Lacks:
        return !facts.isTicked(bound.position) || !facts.isKnown(bound.position);
    case Test::RecordAbove:
        return facts.recordBytes() > condition.number;
    case Test::Unread:
        return isListed(condition.text, facts.unread(numberedName(condition.path, numbers)));
    }
    return false;
}

bool isMet(const BoundCondition& bound, Numbers numbers, const Facts& facts)
{
    const auto isMetAt = [&](Place place) { return isMet(bound, facts.value(place), numbers, facts); };
    if (bound.places.empty())
        return isMetAt({});
    return bound.condition->over == Condition::Over::Some ? std::ranges::any_of(bound.places, isMetAt)
                                                          : std::ranges::all_of(bound.places, isMetAt);
}

bool speaks(const BoundRule& bound, const Facts& facts)
{
    const auto holds = [&](const BoundCondition& condition) {
        return isMet(condition, bound.numbers, facts);
    };
    return std::ranges::all_of(bound.all, holds) &&
           (bound.any.empty() || std::ranges::any_of(bound.any, holds));
}

QString quickText(const QString& path, const QString& value)
{
    const TableLayout& layout = layoutOf(kQuickSettings);
    const int row = layout.rowAt(path);
    return row < 0 ? value : valueText(*layout.rows[row].setting, value, nullptr);
}

// A unit stays on the line of its number, and that of an angle close to it.
QString inSentence(QString value, const Setting& setting)
{
    if (setting.number() || setting.is<Period>()) {
        if (value.endsWith(QStringLiteral(" \u00B0")))
            value.remove(value.size() - 2, 1);
        value.replace(QLatin1Char(' '), QChar(QChar::Nbsp));
    }
    return value;
}

QString told(const Argument& argument, Numbers numbers, const Facts& facts)
{
    const QString path = argument.path ? numberedName(argument.path, numbers) : QString();
    switch (argument.kind) {
    case Argument::Kind::Nothing:
        break;
    case Argument::Kind::OuterNumber:
        return QString::number(numbers.outer);
    case Argument::Kind::InnerNumber:
        return QString::number(numbers.inner);
    case Argument::Kind::Value: {
        const Place place = placeOf(path);
        return inSentence(valueText(facts.table(place), place.row), facts.table(place).setting(place.row));
    }
    case Argument::Kind::Caption: {
        const Place place = placeOf(path);
        return captionText(facts.table(place).setting(place.row));
    }
    case Argument::Kind::Title: {
        const Place place = placeOf(path);
        return headingText(facts.table(place).setting(place.row)).section(QStringLiteral(" / "), -1);
    }
    case Argument::Kind::Field:
        return facts.boxText(positionOf(argument.position, numbers));
    case Argument::Kind::Unread:
        return quickText(path, facts.unread(path));
    case Argument::Kind::RecordBytes:
        return QString::number(facts.recordBytes());
    case Argument::Kind::MostBytes:
        return QString::number(kMostRecordBytes);
    }
    return {};
}

// What brings a field into the record.
void addField(int field, const Facts& facts, std::vector<Mend>* mends)
{
    if (!facts.isTicked(field))
        mends->push_back({QLatin1String(kMaskPath), facts.maskWith(field)});
    if (!facts.isKnown(field))
        mends->push_back({QLatin1String(kFormatPath), QLatin1String(kWholeFormat)});
}

void addFreeCode(const Rule& rule, Numbers numbers, const Facts& facts, std::vector<Mend>* mends)
{
    const QString path = numberedName(rule.freeChoice, numbers);
    const Place place = placeOf(path);
    const Values& table = facts.table(place);
    const QStringList taken = table.limits(place.row).taken;
    for (const Code& code : table.choice(place.row)->codes) {
        const QString text = QString::fromLatin1(code.code);
        if (!code.offered || taken.contains(text))
            continue;
        const Numbers candidate{numbers.outer, static_cast<std::uint8_t>(text.toInt())};
        if (isZero(facts.value(placeOf(numberedName(rule.freeUnless, candidate))))) {
            mends->push_back({path, text});
            return;
        }
    }
}

Finding findingOf(const BoundRule& bound, const Facts& facts)
{
    const Rule& rule = *bound.rule;
    Finding finding{.rule = rule.id, .severity = rule.severity, .text = rule.text};
    for (const Argument& argument : rule.arguments) {
        if (argument.kind != Argument::Kind::Nothing)
            finding.arguments << told(argument, bound.numbers, facts);
    }
    for (const char* path : rule.names) {
        if (path)
            finding.paths << numberedName(path, bound.numbers);
    }
    for (const BoundCondition& condition : bound.all) {
        if (condition.condition->test == Condition::Test::DigitOn)
            finding.parts.emplace_back(numberedName(condition.condition->path, bound.numbers),
                                       condition.position);
    }
    for (const Mending& mending : rule.mendings) {
        if (mending.path)
            finding.mends.push_back(
                {numberedName(mending.path, bound.numbers), QString::fromLatin1(mending.value)});
    }
    if (rule.tick)
        addField(positionOf(rule.tick, bound.numbers), facts, &finding.mends);
    if (rule.freeChoice)
        addFreeCode(rule, bound.numbers, facts, &finding.mends);
    return finding;
}

} // namespace

} // namespace advice

std::vector<Finding> advise(const Configuration& configuration, const QHash<QString, QString>& unread)
{
    Q_ASSERT(configuration.tables().size() >= allSettings().size());
    const advice::Facts facts(configuration, unread);
    std::vector<Finding> findings;
    for (const advice::BoundRule& rule : advice::boundRules()) {
        if (advice::speaks(rule, facts))
            findings.push_back(advice::findingOf(rule, facts));
    }
    return findings;
}

QString adviceText(const Finding& finding)
{
    // Each mark once: an argument may hold such a mark itself.
    const QString form = translated(finding.text);
    QString text;
    for (int i = 0; i < form.size(); ++i) {
        const int number = form[i] == QLatin1Char('%') && i + 1 < form.size() ? form[i + 1].digitValue() : 0;
        if (number > 0 && number <= finding.arguments.size()) {
            text += finding.arguments[number - 1];
            ++i;
        } else {
            text += form[i];
        }
    }
    return text;
}

} // namespace vlk::review
