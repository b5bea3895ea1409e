#include "telemetry/files/filter_parser.h"

#include "base/translated.h"
#include "telemetry/files/filter_nodes.h"
#include "telemetry/files/filter_values.h"

#include <QRegularExpression>

#include <algorithm>

namespace vlk {

namespace {

using namespace nodes;

constexpr int kDeepest = 64;
constexpr int kMostCompletions = 200; // more would not be read
constexpr int kMostNearWords = 3;
constexpr int kLeastAlike = 3; // characters at the beginning of a word

enum class Expected : std::uint8_t {
    name,
    sign,
    number,
    word,
    moment,
    joint,
    closing,
    quote,
    flatter,
    equality
};

// By Expected.
constexpr const char* kExpected[] = {"rec_100", "rec_101", "rec_102", "rec_103", "rec_104",
                                     "rec_105", "rec_106", "rec_107", "rec_108", "rec_109"};

struct SignRow
{
    const char* text;
    Comparison comparison;
};

// Longer ones first.
constexpr SignRow kSigns[] = {{"!=", Comparison::notEqual},
                              {"<>", Comparison::notEqual},
                              {"<=", Comparison::lessOrEqual},
                              {">=", Comparison::greaterOrEqual},
                              {"==", Comparison::equal},
                              {"=", Comparison::equal},
                              {"<", Comparison::less},
                              {">", Comparison::greater},
                              {"\u2264", Comparison::lessOrEqual},
                              {"\u2265", Comparison::greaterOrEqual},
                              {"\u2260", Comparison::notEqual}};

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
    return kind == FilterNode::all ? all : kind == FilterNode::any ? any : negation;
}

class Parser
{
public:
    Parser(const QString& text, const FilterNames& names, std::optional<qint32> utcOffset)
        : text_(text), folded_(foldedForFilter(text)), names_(names), utcOffset_(utcOffset)
    {
    }

    std::optional<Filter> parse()
    {
        passBlanks();
        if (position_ == text_.size())
            return Filter();
        std::optional<FilterNode> root = alternatives();
        if (root && position_ < text_.size())
            root = fault(Expected::joint);
        return root ? std::optional(Filter{std::move(root)}) : std::nullopt;
    }

    // Where the fault is, and what is expected there.
    int position() const { return faultAt_; }
    Expected expected() const { return expected_; }
    // What stands in quotes and is none of the words of its column; else null.
    const QString& unknownWord() const { return unknownWord_; }
    // A number with a unit, or the unit alone, that stands where the fault is; else empty. The names of
    // columns that have units end with them.
    QString unit() const
    {
        static const QRegularExpression form(
            QStringLiteral("(?:[+-]?\\d+(?:[.,]\\d+)?)?(?<unit>(?:\\p{L}|[%°])[^\\s()]*)"));
        const auto match = form.match(text_, faultAt_, QRegularExpression::NormalMatch,
                                      QRegularExpression::AnchoredMatchOption);
        const QString ending = QStringLiteral(", ") + foldedForFilter(match.captured(QStringLiteral("unit")));
        const bool isUnit = std::ranges::any_of(
            names_.foldedNames(), [&ending](const QString& name) { return name.endsWith(ending); });
        const bool isAtValue =
            expected_ == Expected::joint || expected_ == Expected::number || expected_ == Expected::word;
        return isAtValue && match.hasMatch() && isUnit ? match.captured() : QString();
    }
    // The last name that was read: its column, where it begins and where it ends.
    FilterColumn column() const { return column_; }
    int nameBegin() const { return nameBegin_; }
    int nameEnd() const { return nameEnd_; }

private:
    std::nullopt_t fault(Expected expected) { return fault(expected, position_); }
    std::nullopt_t fault(Expected expected, int position)
    {
        faultAt_ = position;
        expected_ = expected;
        return std::nullopt;
    }

    void passBlanks()
    {
        while (position_ < text_.size() && folded_[position_] == QLatin1Char(' '))
            ++position_;
    }

    // Behind one of the words, in whole, if one stands here; else where it began.
    int behindWord(FilterNode::Kind kind) const
    {
        for (const QString& word : wordsOf(kind)) {
            const int end = position_ + word.size();
            const bool isWhole = end >= folded_.size() ||
                                 !(folded_[end].isLetterOrNumber() || folded_[end] == QLatin1Char('_'));
            if (isWhole && folded_.midRef(position_, word.size()) == word)
                return end;
        }
        return position_;
    }

    bool takeWord(FilterNode::Kind kind)
    {
        const int end = behindWord(kind);
        if (end == position_)
            return false;
        position_ = end;
        passBlanks();
        return true;
    }

    std::optional<FilterNode> alternatives()
    {
        return chain(FilterNode::any,
                     [this] { return chain(FilterNode::all, [this] { return primary(); }); });
    }

    template <class Part>
    std::optional<FilterNode> chain(FilterNode::Kind kind, Part next)
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

    std::optional<FilterNode> primary()
    {
        if (position_ < text_.size() && text_[position_] == QLatin1Char('('))
            return deeper([this] { return bracket(); });
        int end = position_;
        const std::optional<FilterColumn> column = nameHere(&end);
        if (const int behind = behindWord(FilterNode::negation); behind > end) {
            position_ = behind;
            passBlanks();
            return deeper([this]() -> std::optional<FilterNode> {
                std::optional<FilterNode> part = primary();
                if (!part)
                    return std::nullopt;
                return FilterNode{.kind = FilterNode::negation, .parts = {std::move(*part)}};
            });
        }
        if (!column)
            return fault(Expected::name);
        column_ = *column;
        nameBegin_ = position_;
        nameEnd_ = end;
        position_ = end;
        passBlanks();
        return comparison();
    }

    template <class Parse>
    std::optional<FilterNode> deeper(Parse parse)
    {
        if (depth_ == kDeepest)
            return fault(Expected::flatter);
        ++depth_;
        std::optional<FilterNode> node = parse();
        --depth_;
        return node;
    }

    std::optional<FilterNode> bracket()
    {
        ++position_;
        passBlanks();
        std::optional<FilterNode> node = alternatives();
        if (!node)
            return std::nullopt;
        if (position_ == text_.size() || text_[position_] != QLatin1Char(')'))
            return fault(position_ == text_.size() ? Expected::closing : Expected::joint);
        ++position_;
        passBlanks();
        return node;
    }

    std::optional<FilterColumn> nameHere(int* end) const
    {
        if (!quoteAt(text_, position_))
            return names_.columnAt(folded_, position_, end);
        const std::optional<QString> name = quotedHere(end);
        return name ? names_.column(*name) : std::nullopt;
    }

    // What stands in quotes here; none where they are not closed. `end`: behind them.
    std::optional<QString> quotedHere(int* end) const
    {
        const QuoteRow* const row = quoteAt(text_, position_);
        const int closing = text_.indexOf(QChar(row->closing), position_ + 1);
        if (closing < 0)
            return std::nullopt;
        *end = closing + 1;
        return text_.mid(position_ + 1, closing - position_ - 1);
    }

    std::optional<FilterNode> comparison()
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
        return fault(Expected::sign);
    }

    Expected expectedValue() const
    {
        if (holdsTimes(column_))
            return Expected::moment;
        return names_.hasWords(column_) ? Expected::word : Expected::number;
    }

    std::optional<FilterNode> value(Comparison comparison)
    {
        const int begin = position_;
        int end = begin;
        if (quoteAt(text_, begin)) {
            const std::optional<QString> quoted = quotedHere(&end);
            if (!quoted)
                return fault(names_.hasWords(column_) ? Expected::word : Expected::quote, begin);
            if (const std::vector<CodeRange> codes = names_.codesOf(column_, *quoted); !codes.empty())
                return wordNode(comparison, codes, begin, end);
            int used = 0;
            std::optional<FilterNode> node = plainValue(comparison, quoted->trimmed(), 0, &used);
            if (!node || used != quoted->trimmed().size()) {
                if (expectedValue() == Expected::word)
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
        if (const std::vector<CodeRange> codes = names_.codesAt(column_, folded_, begin, &end);
            !codes.empty())
            return wordNode(comparison, codes, begin, end);
        return fault(expectedValue(), begin);
    }

    std::optional<FilterNode> wordNode(Comparison comparison, const std::vector<CodeRange>& codes, int begin,
                                       int end)
    {
        const bool isEqual = comparison == Comparison::equal;
        if (!isEqual && comparison != Comparison::notEqual)
            return fault(Expected::equality, begin);
        std::vector<FilterNode> parts;
        for (const CodeRange& range : codes)
            parts.push_back(isEqual ? inside(column_, range) : outside(column_, range));
        position_ = end;
        return joined(isEqual ? FilterNode::any : FilterNode::all, std::move(parts));
    }

    std::optional<FilterNode> plainValue(Comparison comparison, const QString& text, int position,
                                         int* end) const
    {
        if (holdsTimes(column_)) {
            if (const std::optional<MomentSpan> moment = typedMoment(text, position, utcOffset_, end))
                return compared(column_, comparison, *moment);
        }
        const std::optional<double> number = typedNumber(text, position, end);
        // Of a date in another form than those that are read it takes the day.
        const QString rest = number ? text.mid(*end).trimmed() : QString();
        const bool goesOn =
            !rest.isEmpty() && rest[0] != QLatin1Char(')') && (rest[0].isPunct() || rest[0].isDigit());
        if (holdsTimes(column_) && goesOn)
            return std::nullopt;
        return number ? std::optional(condition(column_, comparison, *number)) : std::nullopt;
    }

    const QString& text_;
    const QString folded_;
    const FilterNames& names_;
    const std::optional<qint32> utcOffset_;
    int position_ = 0;
    int depth_ = 0;
    FilterColumn column_{};
    int nameBegin_ = 0;
    int nameEnd_ = -1;
    int faultAt_ = 0;
    QString unknownWord_;
    Expected expected_ = Expected::name;
};

// Words of which one begins with what is typed; those that begin with it themselves come first.
QStringList matching(const QStringList& all, const QStringList& folded, const QString& typed)
{
    const QString inside = QLatin1Char(' ') + typed;
    QStringList first;
    QStringList further;
    for (int i = 0; i < all.size() && first.size() < kMostCompletions; ++i) {
        if (folded[i].startsWith(typed))
            first << all[i];
        else if (further.size() < kMostCompletions && folded[i].contains(inside))
            further << all[i];
    }
    return (first + further).mid(0, kMostCompletions);
}

QStringList matching(const QStringList& all, const QString& typed)
{
    QStringList folded;
    for (const QString& text : all)
        folded << foldedForFilter(text);
    return matching(all, folded, typed);
}

// What was expected, and in place of a name the word that is none.
QString faultText(const Parser& parser, const QString& text)
{
    const Expected expected = parser.expected();
    const int position = parser.position();
    const QString needed = translated(kExpected[static_cast<int>(expected)]);
    if (const QString unit = parser.unit(); !unit.isEmpty())
        return translated("rec_650").arg(needed, unit);
    const auto isInWord = [](QChar sign) { return sign.isLetterOrNumber() || sign == QLatin1Char('_'); };
    const auto end = std::ranges::find_if_not(text.begin() + position, text.end(), isInWord);
    const QString word = text.mid(position, static_cast<int>(end - text.begin()) - position);
    return expected == Expected::name && !word.isEmpty() ? translated("rec_298").arg(needed, word) : needed;
}

QString inQuotes(const QString& word)
{
    const QLatin1Char quote(word.contains(QLatin1Char('"')) ? '\'' : '"');
    return quote + word + quote;
}

// With the words of the column that begin as the unknown one does.
QString unknownWordText(const QString& column, const QString& word, const QStringList& known)
{
    const QString needed = translated("rec_360").arg(column, word);
    const QString typed = foldedForFilter(word);
    for (int length = typed.size(); length >= kLeastAlike; --length) {
        QStringList near = matching(known, typed.left(length)).mid(0, kMostNearWords);
        if (near.isEmpty())
            continue;
        std::ranges::transform(near, near.begin(), inQuotes);
        return translated("rec_361").arg(needed, near.join(QStringLiteral(", ")));
    }
    return needed;
}

} // namespace

ParsedFilter parseFilter(const QString& text, const FilterNames& names, std::optional<qint32> utcOffset)
{
    Parser parser(text, names, utcOffset);
    ParsedFilter parsed{parser.parse(), {}};
    if (!parsed.filter)
        parsed.fault = {parser.position(), faultText(parser, text)};
    if (!parsed.filter && !parser.unknownWord().isNull())
        parsed.fault.expected =
            unknownWordText(text.mid(parser.nameBegin(), parser.nameEnd() - parser.nameBegin()),
                            parser.unknownWord(), names.words(parser.column()));
    return parsed;
}

std::vector<FilterCompletion> completions(const QString& text, int cursor, const FilterNames& names)
{
    const QString before = text.left(cursor);
    Parser parser(before, names, 0);
    const bool isWhole = parser.parse().has_value();
    const Expected expected = isWhole && !before.trimmed().isEmpty() ? Expected::joint : parser.expected();
    int from = isWhole ? before.size() : parser.position();
    QString typed = foldedForFilter(before.mid(from));
    const bool isQuoted = quoteAt(typed, 0) != nullptr;
    if (isQuoted)
        typed.remove(0, 1);

    std::vector<FilterCompletion> all;
    const auto offer = [&](const QStringList& texts, int begin) {
        for (const QString& offered : texts)
            all.push_back({begin, offered});
    };
    switch (expected) {
    case Expected::name:
        for (const QString& name : matching(names.names(), names.foldedNames(), typed))
            all.push_back({from, isQuoted ? inQuotes(name) : name});
        break;
    case Expected::sign: {
        // The name may be the beginning of a longer one.
        if (parser.nameEnd() == before.size())
            offer(
                matching(names.names(), names.foldedNames(), foldedForFilter(before.mid(parser.nameBegin()))),
                parser.nameBegin());
        for (const char* sign : {"=", "!=", "<", ">", "<=", ">="}) {
            if (QString::fromLatin1(sign).startsWith(typed))
                all.push_back({from, QString::fromLatin1(sign)});
        }
        break;
    }
    case Expected::word:
    case Expected::moment:
    case Expected::number:
        for (const QString& word : matching(names.words(parser.column()), typed))
            all.push_back({from, inQuotes(word)});
        break;
    case Expected::joint:
    case Expected::closing:
        // Only behind a blank.
        if (before.endsWith(QLatin1Char(' ')) || !typed.isEmpty())
            offer(matching({translated("rec_110"), translated("rec_111")}, typed), from);
        break;
    default:
        break;
    }
    return all;
}

} // namespace vlk
