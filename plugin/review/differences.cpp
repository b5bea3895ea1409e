#include "review/differences.h"

#include "review/take_over.h"
#include "settings/quick_settings.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>

namespace vlk::review {

namespace {

QString there(const QString& text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

int sizeOf(const auto& lists)
{
    const auto add = [](std::size_t sum, const auto& list) { return sum + list.size(); };
    return static_cast<int>(std::accumulate(lists.begin(), lists.end(), std::size_t{0}, add));
}

std::vector<int> concatenated(const std::vector<std::vector<int>>& lists)
{
    std::vector<int> all;
    for (const std::vector<int>& list : lists)
        all.insert(all.end(), list.begin(), list.end());
    return all;
}

// As a new configuration holds it, or a missing key reads.
bool isFresh(int table, int row, const QString& text)
{
    static thread_local std::vector<std::optional<Values>> fresh(FileKeys::all().tables());
    if (!fresh[table])
        fresh[table].emplace(*FileKeys::all().layout(table).table);
    return text == fresh[table]->written(row) || text == fresh[table]->row(row).loadDefault();
}

} // namespace

Differences::Differences(FileState before, FileState after)
    : before_(std::move(before)), after_(std::move(after)), keys_(FileKeys::all().tables()),
      ownKeys_(FileKeys::all().tables())
{
    for (int table = 0; table < FileKeys::all().tables(); ++table)
        compare(table);
    compareStrangers();
}

void Differences::compare(int table)
{
    keys_[table].clear();
    for (int key = FileKeys::all().firstOf(table); key < FileKeys::all().firstOf(table + 1); ++key) {
        if (isDifferent(key))
            keys_[table].push_back(key);
    }
    ownKeys_[table].clear();
    std::ranges::copy_if(keys_[table], std::back_inserter(ownKeys_[table]),
                         [this](int key) { return !isAlong(key); });
}

void Differences::compareStrangers()
{
    strangers_.assign(FileKeys::all().tables() + 1, {});
    QHash<QString, QString> after;
    for (const Stranger& stranger : after_.strangers())
        after.insert(stranger.path, there(stranger.text));
    const auto add = [&](const Difference& difference) {
        strangers_[FileKeys::all().tableOfSection(difference.path)].push_back(difference);
    };
    for (const Stranger& stranger : before_.strangers()) {
        const QString now = after.take(stranger.path);
        if (now != there(stranger.text) || now.isNull())
            add({-1, -1, stranger.path, there(stranger.text), now, now.isNull() && !after_.isDocument()});
    }
    for (const Stranger& stranger : after_.strangers()) {
        if (after.contains(stranger.path))
            add({-1, -1, stranger.path, {}, there(stranger.text)});
    }
}

std::vector<Difference> Differences::strangers() const
{
    std::vector<Difference> all;
    for (const std::vector<Difference>& strangers : strangers_)
        all.insert(all.end(), strangers.begin(), strangers.end());
    return all;
}

int Differences::count() const
{
    return sizeOf(keys_) + sizeOf(strangers_);
}

bool Differences::isDifferent(int table, int row) const
{
    const std::vector<int>& held = FileKeys::all().heldBy(table, row);
    return std::ranges::any_of(held, [this](int key) { return isDifferent(key); });
}

bool Differences::isAlong(int key) const
{
    const Held& before = before_.at(key);
    const Held& after = after_.at(key);
    if (before.isThere == after.isThere)
        return false;
    const int table = FileKeys::all()[key].table;
    const std::vector<int> deciders = decidersOf(key);
    const Held& held = before.isThere ? before : after;
    return std::ranges::any_of(deciders, [&](int decider) { return isDifferent(table, decider); }) &&
           isFresh(table, held.row, held.text);
}

bool Differences::isByLoad(int key) const
{
    const Held& before = before_.at(key);
    const Held& after = after_.at(key);
    return !after_.isDocument() && isDifferent(key) && before.isSaved == after.isThere &&
           before.saved == after.text;
}

bool Differences::isWith(int key, const std::vector<int>& keys) const
{
    const std::vector<int> deciders = decidersOf(key);
    return std::ranges::any_of(deciders, [&](int decider) {
        return std::ranges::any_of(FileKeys::all().heldBy(FileKeys::all()[key].table, decider),
                                   [&](int held) { return std::ranges::find(keys, held) != keys.end(); });
    });
}

std::vector<int> Differences::decidersOf(int key) const
{
    const Held& after = after_.at(key);
    return review::decidersOf(FileKeys::all().layout(FileKeys::all()[key].table),
                              after.isThere ? after.row : before_.at(key).row);
}

std::vector<int> Differences::keys() const
{
    return concatenated(keys_);
}

std::vector<int> Differences::ownKeys() const
{
    return concatenated(ownKeys_);
}

Difference Differences::differenceAt(int key) const
{
    const Held& before = before_.at(key);
    const Held& after = after_.at(key);
    const bool byLoad = isByLoad(key);
    return {key,
            after.isThere || before.row < 0 ? after.row : before.row,
            FileKeys::all()[key].path,
            before.isThere ? there(before.text) : QString(),
            after.isThere ? there(after.text) : QString(),
            byLoad,
            byLoad && before.isSaved ? before.change : Change::None,
            isAlong(key)};
}

std::vector<Difference> Differences::all() const
{
    std::vector<Difference> all;
    all.reserve(count());
    for (std::size_t table = 0; table < strangers_.size(); ++table) {
        if (table < keys_.size()) {
            for (const int key : keys_[table])
                all.push_back(differenceAt(key));
        }
        all.insert(all.end(), strangers_[table].begin(), strangers_[table].end());
    }
    return all;
}

std::vector<Difference> Differences::allForQuick() const
{
    const QStringList anew = sectionsMadeAnew(layoutOf(kQuickSettings));
    std::vector<Difference> all = this->all();
    std::stable_partition(all.begin(), all.end(), [&](const Difference& difference) {
        return anew.contains(difference.path.section(QLatin1Char('/'), 0, 0));
    });
    return all;
}

void Differences::update(const Values& values)
{
    const int table = FileKeys::all().tableOf(values.table());
    if (table < 0)
        return;
    after_.take(values);
    if (before_.isDefaults())
        before_.take(values);
    compare(table);
}

void Differences::updateBoth(const Values& values, const std::vector<int>& fixed)
{
    const FileState before = before_;
    before_.take(values);
    for (const int key : fixed)
        before_.take(key, before);
    update(values);
}

void Differences::update(const FileState& full, const Values& quick)
{
    after_ = full;
    after_.lay(quick);
    for (int table = 0; table < FileKeys::all().tables(); ++table)
        compare(table);
    compareStrangers();
}

} // namespace vlk::review
