#include "telemetry/files/record_filter.h"

#include <QDateTime>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>

namespace vlk {

namespace {

// By Comparison.
constexpr const char* kSignTexts[] = {" = ", " != ", " < ", " > ", " <= ", " >= "};

QString keptNumber(const FilterColumn& column, double number)
{
    constexpr double kBehindTimes = std::uint64_t{1} << 32;
    if (holdsTimes(column) && number >= 0 && number < kBehindTimes && number == std::trunc(number))
        return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(number), Qt::UTC).toString(Qt::ISODate);
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return QString::fromLatin1(digits, static_cast<int>(end - digits));
}

void addText(QString& text, const FilterNode& node, const FilterWording& wording);

// A part that binds less than what it stands in has brackets.
void addPart(QString& text, const FilterNode& part, FilterNode::Kind inside, const FilterWording& wording)
{
    const bool isJoined = part.kind == FilterNode::All || part.kind == FilterNode::Any;
    const bool inBrackets = isJoined && !(inside == FilterNode::Any && part.kind == FilterNode::All);
    if (inBrackets)
        text += QLatin1Char('(');
    addText(text, part, wording);
    if (inBrackets)
        text += QLatin1Char(')');
}

void addText(QString& text, const FilterNode& node, const FilterWording& wording)
{
    switch (node.kind) {
    case FilterNode::Condition:
        text += wording.name(node.column) + QLatin1String(kSignTexts[static_cast<int>(node.comparison)]) +
                wording.number(node.column, node.number);
        return;
    case FilterNode::Negation:
        text += wording.negation + QLatin1Char(' ');
        addPart(text, node.parts.front(), node.kind, wording);
        return;
    case FilterNode::All:
    case FilterNode::Any:
        for (std::size_t part = 0; part < node.parts.size(); ++part) {
            if (part > 0)
                text += QLatin1Char(' ') + (node.kind == FilterNode::All ? wording.all : wording.any) +
                        QLatin1Char(' ');
            addPart(text, node.parts[part], node.kind, wording);
        }
    }
}

// How far numbers of the column may lie from a number that people write and still mean it.
double tolerance(const FilterColumn& column, double number)
{
    const Element& element = kElements[elementOf(column)];
    if (element.type == ValueType::F32)
        return std::abs(number) * 1e-7;
    const auto* const item = std::get_if<ItemIndex>(&column);
    const Measure* const measure = item ? &measureOf(kItems[*item], kItems[*item].rule()) : nullptr;
    const bool isScaled = measure && (measure->multiplier != 1 || measure->divisor != 1);
    return isScaled ? std::abs(number) * 1e-12 : 0;
}

// A node with the numbers that it looks at.
struct Bound
{
    FilterNode::Kind kind;
    Comparison comparison;
    double low;  // numbers from here
    double high; // to here are equal
    std::variant<const double*, const quint32*> numbers;
    bool zeroIsNone; // a record has no such number
    std::vector<Bound> parts;
};

std::variant<const double*, const quint32*> numbersOf(const FilterColumn& column, RecordColumns& columns)
{
    if (const auto* const part = std::get_if<ElementIndex>(&column))
        return columns.numbers(*part).data();
    switch (const ItemIndex index = std::get<ItemIndex>(column)) {
    case item("Time"):
    case item("Time.local"):
        return columns.times().data();
    case item("Code"):
        return columns.codes().data();
    case item("NumPage"):
        return columns.recordNumbers().data();
    default:
        return columns.numbers(index).data();
    }
}

// Of what stands in the head of a record, which is 0 where it does not tell it.
bool isNoneAtZero(const FilterColumn& column)
{
    const auto* const index = std::get_if<ItemIndex>(&column);
    return index && (*index == item("Time") || *index == item("Time.local") || *index == item("NumPage"));
}

Bound bind(const FilterNode& node, RecordColumns& columns)
{
    Bound bound{node.kind, node.comparison, 0, 0, {}, false, {}};
    if (node.kind == FilterNode::Condition) {
        const double slack = tolerance(node.column, node.number);
        bound.low = node.number - slack;
        bound.high = node.number + slack;
        bound.numbers = numbersOf(node.column, columns);
        bound.zeroIsNone = isNoneAtZero(node.column);
    }
    for (const FilterNode& part : node.parts)
        bound.parts.push_back(bind(part, columns));
    return bound;
}

constexpr int kBlock = 2048;
using Passes = std::array<std::uint8_t, kBlock>;

template <class Number, class Holds>
void fill(Passes& passes, const Number* numbers, int count, Holds holds)
{
    for (int i = 0; i < count; ++i)
        passes[i] = holds(static_cast<double>(numbers[i]));
}

// What is none meets no comparison.
void leaveOutNone(Passes& passes, const quint32* numbers, int count)
{
    for (int i = 0; i < count; ++i)
        passes[i] = passes[i] & (numbers[i] != 0);
}

template <class Number>
void compare(const Bound& bound, const Number* numbers, int count, Passes& passes)
{
    const double low = bound.low;
    const double high = bound.high;
    switch (bound.comparison) {
    case Comparison::Equal:
        return fill(passes, numbers, count, [=](double number) { return number >= low && number <= high; });
    case Comparison::NotEqual:
        return fill(passes, numbers, count, [=](double number) { return number < low || number > high; });
    case Comparison::Less:
        return fill(passes, numbers, count, [=](double number) { return number < low; });
    case Comparison::Greater:
        return fill(passes, numbers, count, [=](double number) { return number > high; });
    case Comparison::LessOrEqual:
        return fill(passes, numbers, count, [=](double number) { return number <= high; });
    case Comparison::GreaterOrEqual:
        return fill(passes, numbers, count, [=](double number) { return number >= low; });
    }
}

void evaluate(const Bound& bound, int first, int count, Passes& passes)
{
    if (bound.kind == FilterNode::Condition) {
        std::visit([&](const auto* numbers) { compare(bound, numbers + first, count, passes); },
                   bound.numbers);
        if (bound.zeroIsNone)
            leaveOutNone(passes, std::get<const quint32*>(bound.numbers) + first, count);
        return;
    }
    evaluate(bound.parts.front(), first, count, passes);
    if (bound.kind == FilterNode::Negation) {
        for (int i = 0; i < count; ++i)
            passes[i] = !passes[i];
        return;
    }
    const bool isAll = bound.kind == FilterNode::All;
    Passes more;
    for (std::size_t part = 1; part < bound.parts.size(); ++part) {
        evaluate(bound.parts[part], first, count, more);
        for (int i = 0; i < count; ++i)
            passes[i] = isAll ? passes[i] & more[i] : passes[i] | more[i];
    }
}

} // namespace

std::string_view nameOf(const FilterColumn& column)
{
    if (const auto* const index = std::get_if<ItemIndex>(&column))
        return kItems[*index].name;
    return kElements[std::get<ElementIndex>(column)].name;
}

ElementIndex elementOf(const FilterColumn& column)
{
    if (const auto* const index = std::get_if<ItemIndex>(&column))
        return kItems[*index].element;
    return std::get<ElementIndex>(column);
}

bool holdsTimes(const FilterColumn& column)
{
    return kElements[elementOf(column)].measure.unit == Unit::UnixSeconds;
}

QString Filter::text() const
{
    const auto nameText = [](const FilterColumn& column) {
        const std::string_view name = nameOf(column);
        return QString::fromLatin1(name.data(), static_cast<int>(name.size()));
    };
    return text({nameText, keptNumber, QStringLiteral("and"), QStringLiteral("or"), QStringLiteral("not")});
}

QString Filter::text(const FilterWording& wording) const
{
    QString text;
    if (root)
        addText(text, *root, wording);
    return text;
}

std::vector<FilterColumn> Filter::columns() const
{
    std::vector<FilterColumn> columns;
    const std::function<void(const FilterNode&)> take = [&](const FilterNode& node) {
        if (node.kind == FilterNode::Condition && std::ranges::find(columns, node.column) == columns.end())
            columns.push_back(node.column);
        std::ranges::for_each(node.parts, take);
    };
    if (root)
        take(*root);
    return columns;
}

std::vector<int> passing(const Filter& filter, RecordColumns& columns, int first)
{
    const int size = columns.store().size();
    std::vector<int> records;
    if (filter.empty()) {
        records.resize(size - first);
        std::iota(records.begin(), records.end(), first);
        return records;
    }
    const Bound bound = bind(*filter.root, columns);
    Passes passes;
    for (; first < size; first += kBlock) {
        const int count = std::min(kBlock, size - first);
        evaluate(bound, first, count, passes);
        for (int i = 0; i < count; ++i) {
            if (passes[i] && !columns.isDamaged(first + i))
                records.push_back(first + i);
        }
    }
    return records;
}

} // namespace vlk
