#include "telemetry/files/filter_parser.h"

#include "base/translated.h"
#include "telemetry/files/filter_grammar.h"

#include <algorithm>

namespace vlk {

namespace {

using Expected = FilterGrammar::Expected;

constexpr int kMostCompletions = 200; // more would not be read
constexpr int kMostNearWords = 3;
constexpr int kLeastAlike = 3; // characters at the beginning of a word

// By Expected.
constexpr const char* kExpected[] = {"rec_100", "rec_101", "rec_102", "rec_103", "rec_104",
                                     "rec_105", "rec_106", "rec_107", "rec_108", "rec_109"};

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
QString faultText(const FilterGrammar& parser, const QString& text)
{
    const Expected expected = parser.expected();
    const int position = parser.position();
    const QString needed = translated(kExpected[static_cast<int>(expected)]);
    if (const QString unit = parser.unit(); !unit.isEmpty())
        return translated("rec_650").arg(needed, unit);
    const auto isInWord = [](QChar sign) { return sign.isLetterOrNumber() || sign == QLatin1Char('_'); };
    const auto end = std::ranges::find_if_not(text.begin() + position, text.end(), isInWord);
    const QString word = text.mid(position, static_cast<int>(end - text.begin()) - position);
    return expected == Expected::Name && !word.isEmpty() ? translated("rec_298").arg(needed, word) : needed;
}

QString inQuotes(const QString& word)
{
    const QLatin1Char quote(word.contains(QLatin1Char('"')) ? '\'' : '"');
    return quote + word + quote;
}

// With the words of the column that begin as the unknown one does.
QString unknownWordText(const QString& column, const QString& word, const QStringList& known)
{
    QString needed = translated("rec_360").arg(column, word);
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
    FilterGrammar parser(text, names, utcOffset);
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
    FilterGrammar parser(before, names, 0);
    const bool isWhole = parser.parse().has_value();
    const Expected expected = isWhole && !before.trimmed().isEmpty() ? Expected::Joint : parser.expected();
    int from = isWhole ? before.size() : parser.position();
    QString typed = foldedForFilter(before.mid(from));
    const bool isQuoted = FilterGrammar::beginsQuoted(typed);
    if (isQuoted)
        typed.remove(0, 1);

    std::vector<FilterCompletion> all;
    const auto offer = [&](const QStringList& texts, int begin) {
        for (const QString& offered : texts)
            all.push_back({begin, offered});
    };
    switch (expected) {
    case Expected::Name:
        for (const QString& name : matching(names.names(), names.foldedNames(), typed))
            all.push_back({from, isQuoted ? inQuotes(name) : name});
        break;
    case Expected::Sign: {
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
    case Expected::Word:
    case Expected::Moment:
    case Expected::Number:
        for (const QString& word : matching(names.words(parser.column()), typed))
            all.push_back({from, inQuotes(word)});
        break;
    case Expected::Joint:
    case Expected::Closing:
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
