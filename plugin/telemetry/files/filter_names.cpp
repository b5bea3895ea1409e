#include "telemetry/files/filter_names.h"

#include "base/alike_letters.h"
#include "telemetry/files/csv_columns.h"

#include <algorithm>
#include <limits>

namespace vlk {

namespace {

QString latin1(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

bool isInWord(QChar sign)
{
    return sign.isLetterOrNumber() || sign == QLatin1Char('_');
}

// Calls visit(key, end) for each beginning of the text behind the position that ends where a word does; the
// key has single blanks and at most `longest` characters.
template <class Visit>
void forEachBeginning(const QString& folded, int position, int longest, Visit visit)
{
    QString key;
    for (int at = position; at < folded.size() && key.size() < longest; ++at) {
        const bool isBlank = folded[at] == QLatin1Char(' ');
        if (isBlank && (key.isEmpty() || key.endsWith(QLatin1Char(' '))))
            continue;
        key += folded[at];
        const bool isInside = at + 1 < folded.size() && isInWord(folded[at]) && isInWord(folded[at + 1]);
        if (!isBlank && !isInside)
            visit(key, at + 1);
    }
}

QString keyOf(const QString& text)
{
    return foldedForFilter(text).simplified();
}

// The word that a code of the item shows; null where it shows none.
const Word* wordOf(const Rule& rule, quint32 code)
{
    if (rule.shape == Shape::TwoState)
        return code > 1 ? nullptr : code == 1 ? &rule.set : &rule.clear;
    if (rule.shape != Shape::Enumeration)
        return nullptr;
    const auto covers = [code](const NamedValue& row) { return code >= row.first && code <= row.last; };
    if (const auto row = std::ranges::find_if(rule.names, covers); row != rule.names.end())
        return &row->word;
    return rule.other == Other::Word ? &rule.set : nullptr;
}

} // namespace

QString foldedForFilter(const QString& text)
{
    constexpr QChar io(0x451); // "ё"
    QString folded = text;
    for (QChar& sign : folded) {
        sign = sign.toLower();
        sign = sign.isSpace() ? QChar(QLatin1Char(' ')) : latinAlike(sign == io ? QChar(0x435) : sign);
    }
    return folded;
}

QString wordOfCode(ItemIndex item, quint32 code)
{
    const Word* const word = wordOf(kItems[item].rule(), code);
    return word ? word->text() : QString();
}

FilterNames::FilterNames()
{
    for (int index = 0; index < kItemCount; ++index) {
        if (kItems[index].rule().shape != Shape::Special && index != item("Time.local"))
            add(latin1(kItems[index].name), static_cast<ItemIndex>(index));
    }
    // Those that an item of their name shows are there already.
    for (int index = 0; index < kElementCount; ++index)
        add(latin1(kElements[index].name), static_cast<ElementIndex>(index));
}

void FilterNames::add(const QString& name, const FilterColumn& column)
{
    const QString key = keyOf(name);
    if (!know(key, column))
        return;
    names_.append(name.simplified());
    foldedNames_.append(key);
}

void FilterNames::offerFirst(const QStringList& names)
{
    int place = 0;
    for (const QString& name : names) {
        const int known = foldedNames_.indexOf(keyOf(name), place);
        if (known < 0)
            continue;
        names_.move(known, place);
        foldedNames_.move(known, place++);
    }
}

bool FilterNames::know(const QString& key, const FilterColumn& column)
{
    if (key.isEmpty() || columns_.contains(key))
        return false;
    columns_.insert(key, column);
    longest_ = std::max(longest_, key.size());
    return true;
}

void FilterNames::addWord(const QString& word, const FilterColumn& column, CodeRange codes)
{
    const QString key = keyOf(word);
    if (key.isEmpty())
        return;
    Word& entry = words_[column][key];
    if (entry.codes.empty())
        entry.word = word.simplified();
    if (std::ranges::find(entry.codes, codes) == entry.codes.end())
        entry.codes.push_back(codes);
    longest_ = std::max(longest_, key.size());
}

void FilterNames::addTexts()
{
    QMultiHash<QString, ItemIndex> withoutUnits;
    for (const CsvColumn& column : csvColumns()) {
        const ItemIndex shown = column.named();
        const QString heading = headingText(column);
        add(heading, shown);
        addWordsOf(shown);
        if (const int unit = heading.lastIndexOf(QLatin1String(", ")); unit > 0)
            withoutUnits.insert(keyOf(heading.left(unit)), shown);
    }
    for (const QString& key : withoutUnits.uniqueKeys()) {
        if (withoutUnits.count(key) == 1)
            know(key, withoutUnits.value(key));
    }
}

void FilterNames::addWordsOf(ItemIndex item)
{
    const Rule& rule = kItems[item].rule();
    if (rule.shape == Shape::TwoState) {
        addWord(rule.set.text(), item, {1, 1});
        addWord(rule.clear.text(), item, {0, 0});
    }
    if (rule.shape != Shape::Enumeration)
        return;
    // Rows name codes of one byte; whatever lies above is shown like the last of them that has no row.
    const int bits = rule.bits.count != 0 ? rule.bits.count : 8 * kElements[kItems[item].element].width;
    const quint32 last = bits < 9 ? (1U << bits) - 1 : 256;
    const double highest = bits < 9 ? last : std::numeric_limits<double>::infinity();
    for (quint32 first = 0; first <= last;) {
        const vlk::Word* const word = wordOf(rule, first);
        quint32 next = first + 1;
        while (next <= last && wordOf(rule, next) == word)
            ++next;
        if (word)
            addWord(word->text(), item, {static_cast<double>(first), next > last ? highest : next - 1});
        first = next;
    }
}

std::optional<FilterColumn> FilterNames::columnAt(const QString& folded, int position, int* end) const
{
    std::optional<FilterColumn> found;
    forEachBeginning(folded, position, longest_, [&](const QString& key, int behind) {
        if (const auto place = columns_.find(key); place != columns_.end()) {
            found = *place;
            *end = behind;
        }
    });
    return found;
}

std::optional<FilterColumn> FilterNames::column(const QString& name) const
{
    const auto place = columns_.find(keyOf(name));
    return place == columns_.end() ? std::nullopt : std::optional(*place);
}

std::vector<CodeRange> FilterNames::codesOf(const FilterColumn& column, const QString& word) const
{
    const auto words = words_.find(column);
    return words == words_.end() ? std::vector<CodeRange>() : words->second.value(keyOf(word)).codes;
}

std::vector<CodeRange> FilterNames::codesAt(const FilterColumn& column, const QString& folded, int position,
                                            int* end) const
{
    std::vector<CodeRange> codes;
    const auto words = words_.find(column);
    if (words == words_.end())
        return codes;
    forEachBeginning(folded, position, longest_, [&](const QString& key, int behind) {
        if (const auto place = words->second.find(key); place != words->second.end()) {
            codes = place->codes;
            *end = behind;
        }
    });
    return codes;
}

QStringList FilterNames::words(const FilterColumn& column) const
{
    QStringList all;
    if (const auto words = words_.find(column); words != words_.end()) {
        for (const Word& word : words->second)
            all << word.word;
    }
    all.sort(Qt::CaseInsensitive);
    return all;
}

} // namespace vlk
