#include "review/advice.h"

#include "review/advice_binding.h"
#include "review/advice_rules.h"

#include "catalogue/field_mask.h"
#include "settings/all_settings.h"
#include "settings/configuration.h"
#include "settings/data_set_boxes.h"
#include "settings/kinds/spelling.h"
#include "settings/quick_settings.h"
#include "settings/value_text.h"
#include "xml/xml_section.h"

namespace vlk {

namespace advice {

namespace {

// The box of the data set that chooses a field; null for a field that has none.
const MaskField* boxWith(int position)
{
    const auto holds = [&](const DataSetBox& box) {
        const auto end = box.field.positions.begin() + box.field.count;
        return std::find(box.field.positions.begin(), end, position) != end;
    };
    const auto found = std::find_if(kDataSetBoxes.begin(), kDataSetBoxes.end(), holds);
    return found == kDataSetBoxes.end() ? nullptr : &found->field;
}

// What rules ask about.
class Facts
{
public:
    Facts(const Configuration& configuration, const CXmlSection* file)
        : configuration_(configuration), file_(file), mask_(FieldMask::fromText(maskText().toStdString())),
          fieldCount_(countOf(formatText()))
    {
    }

    const QString& value(Place place) const
    {
        static const QString none;
        return place.table < 0 ? none : table(place).value(place.row);
    }
    const Values& table(Place place) const { return configuration_.tables()[place.table]; }
    QString inFile(const QString& path) const;

    const QString& maskText() const
    {
        static const Place place = placeOf(QLatin1String(kMaskPath));
        return value(place);
    }
    bool isTicked(int field) const { return mask_.test(field); }
    bool knowsFormat(int field) const { return field < fieldCount_; }
    bool lacks(int field) const { return !isTicked(field) || !knowsFormat(field); }
    int recordBytes() const { return kRecordHead + mask_.payloadSize(); }

private:
    const QString& formatText() const
    {
        static const Place place = placeOf(QLatin1String(kFormatPath));
        return value(place);
    }
    static int countOf(const QString& format)
    {
        return format == QLatin1String("10")   ? kZeta10Count
               : format == QLatin1String("20") ? kEarlierFieldCount
                                               : kFieldCount;
    }

    const Configuration& configuration_;
    const CXmlSection* file_;
    FieldMask mask_;
    int fieldCount_;
};

// Empty where the file has no such key.
QString Facts::inFile(const QString& path) const
{
    const QStringList names = path.split(QLatin1Char('/'));
    const CXmlSection* section = file_;
    CXmlSectionPtr element;
    for (int depth = 0; section && depth + 1 < names.size(); ++depth) {
        element = section->existing(names[depth]);
        section = element.get();
    }
    const QString* found = section ? section->find(names.last()) : nullptr;
    return found ? *found : QString();
}

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
    case Test::nothing:
        return true;
    case Test::on:
        return !isZero(value);
    case Test::off:
        return isZero(value);
    case Test::oneOf:
        return isListed(condition.text, value);
    case Test::noneOf:
        return !isListed(condition.text, value);
    case Test::numbered:
        return value.toInt() == numbers.inner;
    case Test::same:
        return value.trimmed().compare(facts.value(bound.other).trimmed(), Qt::CaseInsensitive) == 0;
    case Test::like:
        return bound.pattern.match(value).hasMatch();
    case Test::unlike:
        return !bound.pattern.match(value).hasMatch();
    case Test::below:
        return isBelow();
    case Test::notBelow:
        return !isBelow();
    case Test::digitOn:
        return digitAt(value, static_cast<std::size_t>(bound.position)) != 0;
    case Test::lacks:
        return facts.lacks(bound.position);
    case Test::recordAbove:
        return facts.recordBytes() > condition.number;
    case Test::inFile:
        return isListed(condition.text, facts.inFile(numberedName(condition.path, numbers)));
    }
    return false;
}

bool isMet(const BoundCondition& bound, Numbers numbers, const Facts& facts)
{
    const auto isMetAt = [&](Place place) { return isMet(bound, facts.value(place), numbers, facts); };
    if (bound.places.empty())
        return isMetAt({});
    return bound.condition->over == Condition::Over::some
               ? std::any_of(bound.places.begin(), bound.places.end(), isMetAt)
               : std::all_of(bound.places.begin(), bound.places.end(), isMetAt);
}

bool speaks(const BoundRule& bound, const Facts& facts)
{
    const auto holds = [&](const BoundCondition& condition) {
        return isMet(condition, bound.numbers, facts);
    };
    return std::all_of(bound.all.begin(), bound.all.end(), holds) &&
           (bound.any.empty() || std::any_of(bound.any.begin(), bound.any.end(), holds));
}

// A value of the file as the quick window calls it.
QString quickText(const QString& path, const QString& value)
{
    const TableLayout& layout = layoutOf(kQuickSettings);
    const int row = layout.rowAt(path);
    return row < 0 ? value : valueText(*layout.rows[row].setting, value, nullptr);
}

QString told(const Argument& argument, Numbers numbers, const Facts& facts)
{
    const QString path = argument.path ? numberedName(argument.path, numbers) : QString();
    switch (argument.kind) {
    case Argument::Kind::nothing:
        break;
    case Argument::Kind::outerNumber:
        return QString::number(numbers.outer);
    case Argument::Kind::innerNumber:
        return QString::number(numbers.inner);
    case Argument::Kind::value: {
        const Place place = placeOf(path);
        return valueText(facts.table(place), place.row);
    }
    case Argument::Kind::caption: {
        const Place place = placeOf(path);
        return captionText(facts.table(place).setting(place.row));
    }
    case Argument::Kind::field: {
        const MaskField* box = boxWith(positionOf(argument.position, numbers));
        return box ? fieldText(*box) : QString();
    }
    case Argument::Kind::inFile:
        return quickText(path, facts.inFile(path));
    case Argument::Kind::recordBytes:
        return QString::number(facts.recordBytes());
    case Argument::Kind::mostBytes:
        return QString::number(kMostRecordBytes);
    }
    return {};
}

// What brings a field into the record.
void addField(int field, const Facts& facts, std::vector<Mend>* mends)
{
    const MaskField* box = boxWith(field);
    if (box && !facts.isTicked(field)) {
        QString ticked = facts.maskText().leftJustified(kFieldCount, QLatin1Char('0'));
        for (std::size_t i = 0; i < box->count; ++i)
            ticked[box->positions[i]] = QLatin1Char('1');
        mends->push_back({QLatin1String(kMaskPath), ticked});
    }
    if (!facts.knowsFormat(field))
        mends->push_back({QLatin1String(kFormatPath), QLatin1String(kWholeFormat)});
}

Finding findingOf(const BoundRule& bound, const Facts& facts)
{
    const Rule& rule = *bound.rule;
    Finding finding{.rule = rule.id, .severity = rule.severity, .text = rule.text};
    for (const Argument& argument : rule.arguments) {
        if (argument.kind != Argument::Kind::nothing)
            finding.arguments << told(argument, bound.numbers, facts);
    }
    for (const char* path : rule.names) {
        if (path)
            finding.paths << numberedName(path, bound.numbers);
    }
    if (rule.mendPath)
        finding.mends.push_back(
            {numberedName(rule.mendPath, bound.numbers), QString::fromLatin1(rule.mendValue)});
    if (rule.tick)
        addField(positionOf(rule.tick, bound.numbers), facts, &finding.mends);
    return finding;
}

} // namespace

} // namespace advice

std::vector<Finding> advise(const Configuration& configuration, const CXmlSection* file)
{
    Q_ASSERT(configuration.tables().size() >= allSettings().size());
    const advice::Facts facts(configuration, file);
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

} // namespace vlk
