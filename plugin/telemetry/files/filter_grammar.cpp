#include "telemetry/files/filter_grammar.h"

#include "telemetry/files/filter_nodes.h"
#include "telemetry/files/filter_values.h"

#include <QRegularExpression>

#include <algorithm>

namespace vlk {

namespace {

constexpr int kDeepest = 64;

struct SignRow
{
    const char* text;
    Comparison comparison;
};

// Longer ones first.
constexpr SignRow kSigns[] = {{"!=", Comparison::NotEqual},
                              {"<>", Comparison::NotEqual},
                              {"<=", Comparison::LessOrEqual},
                              {">=", Comparison::GreaterOrEqual},
                              {"==", Comparison::Equal},
                              {"=", Comparison::Equal},
                              {"<", Comparison::Less},
                              {">", Comparison::Greater},
                              {"\u2264", Comparison::LessOrEqual},
                              {"\u2265", Comparison::GreaterOrEqual},
                              {"\u2260", Comparison::NotEqual}};

struct QuoteRow
{
    ushort opening;
    ushort closing;
};
constexpr QuoteRow kQuotes[] = {{'"', '"'}, {'\'', '\''}, {0xAB, 0xBB}, {0x201C, 0x201D}, {0x201E, 0x201C}};

const QuoteRow* quoteAt(const QString& text, int position)
{
    if (position >= text.size())
        return nullptr;
    const auto* row = std::ranges::find(kQuotes, text[position].unicode(), &QuoteRow::opening);
    return row == std::end(kQuotes) ? nullptr : row;
}

const QStringList& wordsOf(FilterNode::Kind kind)
{
    static const QStringList all{QStringLiteral("and"), QStringLiteral("и")};
    static const QStringList any{QStringLiteral("or"), QStringLiteral("или")};
    static const QStringList negation{QStringLiteral("not"), foldedForFilter(QStringLiteral("не"))};
    return kind == FilterNode::All ? all : kind == FilterNode::Any ? any : negation;
}

} // namespace

using namespace nodes;

FilterGrammar::FilterGrammar(const QString& text, const FilterNames& names, std::optional<qint32> utcOffset)
    : text_(text), folded_(foldedForFilter(text)), names_(names), utcOffset_(utcOffset)
{
}

QString FilterGrammar::unit() const
{
    static const QRegularExpression form(
        QStringLiteral("(?:[+-]?\\d+(?:[.,]\\d+)?)?(?<unit>(?:\\p{L}|[%°])[^\\s()]*)"));
    const auto match =
        form.match(text_, faultAt_, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    const QString ending = QStringLiteral(", ") + foldedForFilter(match.captured(QStringLiteral("unit")));
    const bool isUnit = std::ranges::any_of(names_.foldedNames(),
                                            [&ending](const QString& name) { return name.endsWith(ending); });
    const bool isAtValue =
        expected_ == Expected::Joint || expected_ == Expected::Number || expected_ == Expected::Word;
    return isAtValue && match.hasMatch() && isUnit ? match.captured() : QString();
}

bool FilterGrammar::beginsQuoted(const QString& text)
{
    return quoteAt(text, 0) != nullptr;
}

std::optional<Filter> FilterGrammar::parse()
{
    passBlanks();
    if (position_ == text_.size())
        return Filter();
    std::optional<FilterNode> root = alternatives();
    if (root && position_ < text_.size())
        root = fault(Expected::Joint);
    return root ? std::optional(Filter{std::move(root)}) : std::nullopt;
}

std::nullopt_t FilterGrammar::fault(Expected expected, int position)
{
    faultAt_ = position;
    expected_ = expected;
    return std::nullopt;
}

void FilterGrammar::passBlanks()
{
    while (position_ < text_.size() && folded_[position_] == QLatin1Char(' '))
        ++position_;
}

int FilterGrammar::behindWord(FilterNode::Kind kind) const
{
    for (const QString& word : wordsOf(kind)) {
        const int end = position_ + word.size();
        const bool isWhole =
            end >= folded_.size() || !(folded_[end].isLetterOrNumber() || folded_[end] == QLatin1Char('_'));
        if (isWhole && folded_.midRef(position_, word.size()) == word)
            return end;
    }
    return position_;
}

bool FilterGrammar::takeWord(FilterNode::Kind kind)
{
    const int end = behindWord(kind);
    if (end == position_)
        return false;
    position_ = end;
    passBlanks();
    return true;
}

std::optional<FilterNode> FilterGrammar::alternatives()
{
    return chain(FilterNode::Any, [this] { return chain(FilterNode::All, [this] { return primary(); }); });
}

template <class Part>
std::optional<FilterNode> FilterGrammar::chain(FilterNode::Kind kind, Part next)
{
    std::vector<FilterNode> parts;
    do {
        std::optional<FilterNode> part = next();
        if (!part)
            return std::nullopt;
        parts.push_back(std::move(*part));
    } while (takeWord(kind));
    return joined(kind, std::move(parts));
}

std::optional<FilterNode> FilterGrammar::primary()
{
    if (position_ < text_.size() && text_[position_] == QLatin1Char('('))
        return deeper([this] { return bracket(); });
    int end = position_;
    const std::optional<FilterColumn> column = nameHere(&end);
    if (const int behind = behindWord(FilterNode::Negation); behind > end) {
        position_ = behind;
        passBlanks();
        return deeper([this]() -> std::optional<FilterNode> {
            std::optional<FilterNode> part = primary();
            if (!part)
                return std::nullopt;
            return FilterNode{.kind = FilterNode::Negation, .parts = {std::move(*part)}};
        });
    }
    if (!column)
        return fault(Expected::Name);
    column_ = *column;
    nameBegin_ = position_;
    nameEnd_ = end;
    position_ = end;
    passBlanks();
    return comparison();
}

template <class Parse>
std::optional<FilterNode> FilterGrammar::deeper(Parse parse)
{
    if (depth_ == kDeepest)
        return fault(Expected::Flatter);
    ++depth_;
    std::optional<FilterNode> node = parse();
    --depth_;
    return node;
}

std::optional<FilterNode> FilterGrammar::bracket()
{
    ++position_;
    passBlanks();
    std::optional<FilterNode> node = alternatives();
    if (!node)
        return std::nullopt;
    if (position_ == text_.size() || text_[position_] != QLatin1Char(')'))
        return fault(position_ == text_.size() ? Expected::Closing : Expected::Joint);
    ++position_;
    passBlanks();
    return node;
}

std::optional<FilterColumn> FilterGrammar::nameHere(int* end) const
{
    if (!quoteAt(text_, position_))
        return names_.columnAt(folded_, position_, end);
    const std::optional<QString> name = quotedHere(end);
    return name ? names_.column(*name) : std::nullopt;
}

std::optional<QString> FilterGrammar::quotedHere(int* end) const
{
    const QuoteRow* const row = quoteAt(text_, position_);
    const int closing = text_.indexOf(QChar(row->closing), position_ + 1);
    if (closing < 0)
        return std::nullopt;
    *end = closing + 1;
    return text_.mid(position_ + 1, closing - position_ - 1);
}

std::optional<FilterNode> FilterGrammar::comparison()
{
    for (const SignRow& row : kSigns) {
        const QString sign = QString::fromUtf8(row.text);
        if (text_.midRef(position_, sign.size()) != sign)
            continue;
        position_ += sign.size();
        passBlanks();
        std::optional<FilterNode> node = value(row.comparison);
        passBlanks();
        return node;
    }
    return fault(Expected::Sign);
}

FilterGrammar::Expected FilterGrammar::expectedValue() const
{
    if (holdsTimes(column_))
        return Expected::Moment;
    return names_.hasWords(column_) ? Expected::Word : Expected::Number;
}

std::optional<FilterNode> FilterGrammar::value(Comparison comparison)
{
    const int begin = position_;
    int end = begin;
    if (quoteAt(text_, begin)) {
        const std::optional<QString> quoted = quotedHere(&end);
        if (!quoted)
            return fault(names_.hasWords(column_) ? Expected::Word : Expected::Quote, begin);
        if (const std::vector<CodeRange> codes = names_.codesOf(column_, *quoted); !codes.empty())
            return wordNode(comparison, codes, begin, end);
        int used = 0;
        std::optional<FilterNode> node = plainValue(comparison, quoted->trimmed(), 0, &used);
        if (!node || used != quoted->trimmed().size()) {
            if (expectedValue() == Expected::Word)
                unknownWord_ = quoted->trimmed();
            return fault(expectedValue(), begin);
        }
        position_ = end;
        return node;
    }
    if (std::optional<FilterNode> node = plainValue(comparison, text_, begin, &end)) {
        position_ = end;
        return node;
    }
    if (const std::vector<CodeRange> codes = names_.codesAt(column_, folded_, begin, &end); !codes.empty())
        return wordNode(comparison, codes, begin, end);
    return fault(expectedValue(), begin);
}

std::optional<FilterNode> FilterGrammar::wordNode(Comparison comparison, const std::vector<CodeRange>& codes,
                                                  int begin, int end)
{
    const bool isEqual = comparison == Comparison::Equal;
    if (!isEqual && comparison != Comparison::NotEqual)
        return fault(Expected::Equality, begin);
    std::vector<FilterNode> parts;
    parts.reserve(codes.size());
    for (const CodeRange& range : codes)
        parts.push_back(isEqual ? inside(column_, range) : outside(column_, range));
    position_ = end;
    return joined(isEqual ? FilterNode::Any : FilterNode::All, std::move(parts));
}

std::optional<FilterNode> FilterGrammar::plainValue(Comparison comparison, const QString& text, int position,
                                                    int* end) const
{
    if (holdsTimes(column_)) {
        if (const std::optional<MomentSpan> moment = typedMoment(text, position, utcOffset_, end))
            return compared(column_, comparison, *moment);
    }
    const std::optional<double> number = typedNumber(text, position, end);
    // The day of a date in another form than those that are read is not to be taken for a number.
    const QString rest = number ? text.mid(*end).trimmed() : QString();
    const bool goesOn =
        !rest.isEmpty() && rest[0] != QLatin1Char(')') && (rest[0].isPunct() || rest[0].isDigit());
    if (holdsTimes(column_) && goesOn)
        return std::nullopt;
    return number ? std::optional(condition(column_, comparison, *number)) : std::nullopt;
}

} // namespace vlk
