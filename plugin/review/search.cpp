#include "review/search.h"

#include "base/shown_text.h"
#include "review/setting_parts.h"
#include "review/setting_words.h"
#include "review/value_text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vlk::review {

namespace {

QString folded(const QString& text)
{
    QString plain = text.toCaseFolded();
    plain.replace(QChar(0x451), QChar(0x435)); // "ё" is looked for as "е"
    plain.replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    return plain;
}

// How well a text answers a word: 0 not at all, then inside of a word, where one starts, at the start of the
// text, as the whole text. A short word is not looked for inside of others.
int quality(const QString& text, const QString& word)
{
    constexpr int shortWord = 2;
    int best = 0;
    for (int at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        if (at == 0)
            return text.size() == word.size() ? 4 : 3;
        if (!text[at - 1].isLetterOrNumber())
            return 2;
        if (word.size() > shortWord)
            best = 1;
    }
    return best;
}

bool canBeShown(const Setting& setting)
{
    bool has = setting.shown() && setting.shown()->column > 0;
    tables::eachWidget(setting, [&](auto...) { has = true; });
    return has;
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
    Entry entry{{table, row, part}, folded(tables_[table]->row(row).filePath), {}, {}};
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
        words[caption] = folded(told.caption);
        words[group] = folded(told.group);
        words[page] = folded(told.page);
        words[choices] = folded(choiceTexts(setting));
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
    entry.words[language][value] = folded(text);
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

// 0 where one of the words is nowhere.
int Search::score(const Entry& entry, const QStringList& query) const
{
    constexpr std::array<int, fieldCount> weights = {50, 30, 25, 20, 5};
    constexpr int keyWeight = 10;
    constexpr int perQuality = 10;
    int sum = 0;
    for (const QString& word : query) {
        int best = 0;
        const auto take = [&](const QString& text, int weight) {
            if (const int found = quality(text, word); found > 0)
                best = std::max(best, weight + found * perQuality);
        };
        for (int language = 0; language < languages(); ++language) {
            for (int field = 0; field < fieldCount; ++field)
                take(entry.words[language][field], weights[field]);
        }
        take(entry.key, keyWeight);
        if (best == 0)
            return 0;
        sum += best;
    }
    // What the file does not have as things stand comes behind its like.
    const Values& values = *tables_[entry.hit.table];
    const bool isThere = !values.row(entry.hit.row).base->stored || values.isWritten(entry.hit.row);
    return 2 * sum + (isThere ? 1 : 0);
}

std::vector<Hit> Search::find(const QString& query)
{
    if (entries_.empty())
        build();
    const QStringList words = folded(query).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<std::pair<int, const Entry*>> found;
    for (Entry& entry : entries_) {
        if (!words.isEmpty())
            refresh(entry);
        if (const int points = words.isEmpty() ? 1 : score(entry, words); points > 0)
            found.emplace_back(points, &entry);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& left, const auto& right) { return left.first > right.first; });
    std::vector<Hit> hits;
    hits.reserve(found.size());
    std::transform(found.begin(), found.end(), std::back_inserter(hits),
                   [](const auto& entry) { return entry.second->hit; });
    return hits;
}

} // namespace vlk::review
