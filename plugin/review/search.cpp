#include "review/search.h"

#include "base/alike_letters.h"
#include "base/shown_text.h"
#include "review/search_words.h"
#include "review/setting_parts.h"
#include "review/setting_words.h"
#include "review/value_text.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

namespace vlk::review {

namespace {

// In words with a digit, letters that look alike in both alphabets are the same: lines are named "O1" and
// "T1" in Latin, and typed on either keyboard.
void useOneAlphabet(QString& text)
{
    for (int begin = 0, end = 0; begin < text.size(); begin = end + 1) {
        bool hasDigit = false;
        for (end = begin; end < text.size() && text[end].isLetterOrNumber(); ++end)
            hasDigit = hasDigit || text[end].isDigit();
        for (int i = begin; hasDigit && i < end; ++i)
            text[i] = latinAlike(text[i]);
    }
}

QString folded(const QString& text)
{
    QString plain = text.toCaseFolded();
    plain.replace(QChar(0x451), QChar(0x435)); // "ё" is looked for as "е"
    plain.replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    useOneAlphabet(plain);
    return plain;
}

// Without the ending that its case or number gives it, as far as its letters tell: "температура" is
// "температуры" too.
QString wordStem(const QString& word)
{
    static const QString endings = QString::fromUtf8("аеиойуыьэюяs");
    constexpr int leastStem = 4;
    constexpr int longestEnding = 2;
    int size = word.size();
    while (size > leastStem && word.size() - size < longestEnding && endings.contains(word[size - 1]))
        --size;
    return word.left(size);
}

// How well a text answers a word.
enum Quality { Nowhere, Inside, Begun, First, Whole };

// A word is begun by its stem too. A short one is not looked for inside of others.
Quality quality(const QString& text, const QString& word, int stem)
{
    constexpr int shortWord = 2;
    Quality best = Nowhere;
    for (int at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        if (at == 0)
            return text.size() == word.size() ? Whole : First;
        if (!text[at - 1].isLetterOrNumber())
            return Begun;
        if (word.size() > shortWord)
            best = Inside;
    }
    if (best != Nowhere || stem == word.size())
        return best;
    const QStringRef start = word.leftRef(stem);
    for (int at = text.indexOf(start); at >= 0; at = text.indexOf(start, at + 1)) {
        if (at == 0 || !text[at - 1].isLetterOrNumber())
            return at == 0 ? First : Begun;
    }
    return Nowhere;
}

// What else the setting could be.
QString choiceTexts(const Setting& setting)
{
    const auto* choice = setting.as<Choice>();
    QStringList texts;
    for (const Code& code : choice ? choice->codes : std::span<const Code>()) {
        if (*code.label && code.offered)
            texts << codeText(code);
    }
    return texts.join(QLatin1Char('\n'));
}

// A box to tick, one of many too.
bool isSwitch(const Setting& setting)
{
    return setting.is<Flag>() || partCount(setting) > 0;
}

// The names of a setting stand between commas.
bool isOneOf(const QString& names, const QString& name)
{
    return names.splitRef(QLatin1String(", ")).contains(QStringRef(&name));
}

QString otherNames(QString path)
{
    static const QRegularExpression digits(QStringLiteral("\\d"));
    path.remove(digits);
    const auto found = std::ranges::find_if(
        kSearchWords, [&](const SearchWords& words) { return path == QLatin1String(words.path); });
    return found == std::end(kSearchWords) ? QString() : translated(found->text);
}

} // namespace

Search::Search(std::vector<const Values*> tables, TextSource other)
    : tables_(std::move(tables)), other_(std::move(other))
{
}

void Search::build()
{
    for (int table = 0; table < static_cast<int>(tables_.size()); ++table) {
        const Values& values = *tables_[table];
        for (int row = 0; row < values.count(); ++row) {
            const Setting& setting = values.setting(row);
            if (!canBeShown(setting))
                continue;
            const int parts = partCount(setting);
            for (int part = parts > 0 ? 0 : -1; part < parts; ++part) {
                if (part < 0 || isPartShown(setting, part))
                    add(table, row, part);
            }
        }
    }
}

void Search::add(int table, int row, int part)
{
    const QString& path = tables_[table]->row(row).filePath;
    Entry entry{{table, row, part}, folded(path), {}, {}};
    const auto* mask = part < 0 ? nullptr : tables_[table]->setting(row).as<Mask>();
    const QString named = mask ? path + QLatin1Char('/') + QLatin1String(mask->fields[part].widget) : path;
    for (int language = 0; language < languages(); ++language) {
        std::optional<TextsFrom> texts;
        if (language > 0)
            texts.emplace(other_);
        SettingWords told = wordsOf(tables_[table]->layout(), row);
        const Setting& setting = tables_[table]->setting(row);
        Words& words = entry.words[language];
        if (part >= 0) {
            told.group += QLatin1Char(' ') + told.caption;
            told.caption = partCaption(setting, part);
        }
        words[Caption] = folded(told.caption);
        words[Group] = folded(told.group);
        words[Page] =
            folded(told.page + QLatin1Char('\n') + otherNames(path.section(QLatin1Char('/'), 0, 0)));
        words[Choices] = folded(choiceTexts(setting));
        words[Names] = folded(otherNames(named));
    }
    entries_.push_back(std::move(entry));
}

void Search::tell(Entry& entry, int language) const
{
    const Values& values = *tables_[entry.hit.table];
    const Setting& setting = values.setting(entry.hit.row);
    const QString text = values.row(entry.hit.row).base->secret ? QString()
                         : entry.hit.part >= 0
                             ? partText(setting, entry.hit.part, entry.held)
                             : valueText(setting, entry.held, values.unitKey(entry.hit.row));
    entry.words[language][Value] = folded(text);
}

// Tells the value anew where it has changed.
void Search::refresh(Entry& entry) const
{
    const Values& values = *tables_[entry.hit.table];
    const QString& now = values.value(entry.hit.row);
    const QString held =
        entry.hit.part >= 0 ? partOf(values.setting(entry.hit.row), entry.hit.part, now) : now;
    if (held == entry.held && !entry.held.isNull())
        return;
    entry.held = held.isNull() ? QStringLiteral("") : held;
    tell(entry, 0);
    if (other_) {
        const TextsFrom texts(other_);
        tell(entry, 1);
    }
}

// 0 where one of the words is nowhere. Of a switch the title above it counts as much as what it says, so that
// the field that is looked for by the same word comes first.
int Search::score(const Entry& entry, const Query& query) const
{
    constexpr std::array<int, FieldCount> weights = {50, 45, 25, 20, 50, 5};
    constexpr int switchCaption = 25;
    constexpr int keyWeight = 10;
    constexpr int perQuality = 10;
    constexpr int wholeName = 100;
    constexpr int wholeWords = 1000; // behind which those come that have the letters inside of others
    const Values& values = *tables_[entry.hit.table];
    const bool isSwitch = review::isSwitch(values.setting(entry.hit.row));
    int sum = 0;
    bool isBegun = true;
    for (const Word& word : query.words) {
        int best = 0;
        Quality most = Nowhere;
        const auto take = [&](const QString& text, int weight, Quality least = Inside) {
            const Quality found = quality(text, word.text, word.stem);
            if (found < least)
                return;
            best = std::max(best, weight + found * perQuality);
            most = std::max(most, found);
        };
        for (int language = 0; language < languages(); ++language) {
            const Words& words = entry.words[language];
            take(words[Caption], isSwitch ? switchCaption : weights[Caption]);
            if (isSwitch)
                take(words[Caption], weights[Caption], Whole);
            for (int field = Caption + 1; field < FieldCount; ++field)
                take(words[field], isSwitch && field == Group ? switchCaption : weights[field]);
        }
        take(entry.key, keyWeight);
        if (best == 0)
            return 0;
        sum += best;
        isBegun = isBegun && most > Inside;
    }
    const bool isOneWord = query.words.size() == 1; // a caption of one word has counted as a whole
    const bool isCalledSo =
        std::ranges::any_of(std::span(entry.words).first(languages()), [&](const Words& words) {
            return (!isOneWord && words[Caption] == query.text) || isOneOf(words[Names], query.text);
        });
    sum += (isCalledSo ? wholeName : 0) + (isBegun ? wholeWords : 0);
    // What the file does not have as things stand comes behind its like.
    constexpr int absence = 60;
    const bool isThere = !values.row(entry.hit.row).base->stored || values.isWritten(entry.hit.row);
    return std::max(1, sum - (isThere ? 0 : absence));
}

std::vector<Hit> Search::find(const QString& query)
{
    if (entries_.empty())
        build();
    Query asked{folded(query).simplified(), {}};
    for (const QString& word : asked.text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        asked.words.push_back({word, wordStem(word).size()});
    std::vector<std::pair<int, const Entry*>> found;
    for (Entry& entry : entries_) {
        if (!asked.words.empty())
            refresh(entry);
        if (const int points = asked.words.empty() ? 1 : score(entry, asked); points > 0)
            found.emplace_back(points, &entry);
    }
    std::ranges::stable_sort(found, std::ranges::greater(), &std::pair<int, const Entry*>::first);
    std::vector<Hit> hits;
    hits.reserve(found.size());
    std::ranges::transform(found, std::back_inserter(hits),
                           [](const auto& entry) { return entry.second->hit; });
    return hits;
}

} // namespace vlk::review
