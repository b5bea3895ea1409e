// What settings do to each other. rule.h tells the order in which rules act: that of the calls in assign(),
// change() and edit().

#include "settings/values.h"

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

// The first row of this code, null where there is none.
const PresetRow* rowOf(const Presets& presets, const QString& code)
{
    const auto found = std::find_if(presets.rows.begin(), presets.rows.end(),
                                    [&](const PresetRow& row) { return code == QLatin1String(row.code); });
    return found == presets.rows.end() ? nullptr : &*found;
}

} // namespace

std::vector<int> Values::edit(int row, const QString& text)
{
    Changes changed;
    if (row < 0 || row >= count())
        return changed;
    change(holder(row), text, &changed);
    setAll(Moment::always, &changed);
    return changed;
}

void Values::change(int row, const QString& text, Changes* changed)
{
    const Choice* choice = this->choice(row);
    // A list without a current item is nothing that a file could ask for.
    const QString value =
        choice && isNoItem(*choice, text) ? text : normalised(row, text, limits(row), Source::edit);
    const auto& presets = table().presets;
    const bool triggers = std::any_of(presets.begin(), presets.end(),
                                      [row](const Presets& rule) { return rule.trigger.row == row; });
    if ((value == values_[row] && !triggers) ||
        std::find(editing_.begin(), editing_.end(), row) != editing_.end())
        return;
    editing_.push_back(row);
    const QString before = values_[row];
    assign(row, value, changed);
    // Another range may hold now.
    for (const RangeWhen& rule : table().ranges) {
        const int ranged = rule.path.row;
        if (rule.when.row == row && !rule.startsOver)
            put(ranged, normalised(ranged, values_[ranged], limits(ranged)), changed);
    }
    setBy(row, false, before, changed);
    for (const Presets& rule : presets) {
        const PresetRow* chosen = rule.trigger.row == row ? rowOf(rule, value) : nullptr;
        for (std::size_t field = 0; chosen && field < rule.fields.size(); ++field) {
            if (chosen->values[field])
                change(rule.fields[field].row, QString::fromUtf8(chosen->values[field]), changed);
        }
    }
    editing_.pop_back();
}

// By the rules of the row, which was worth `before`.
void Values::setBy(int row, bool isRead, const QString& before, Changes* changed)
{
    for (const Sets* rule : layout_->rows[row].sets) {
        if ((isRead && rule->moment != Moment::editOrRead) || !holds(rule->when) || !holds(rule->also))
            continue;
        const QString now = std::exchange(values_[row], before);
        const bool heldBefore = rule->isOnset && holds(rule->when);
        values_[row] = now;
        if (!heldBefore)
            change(rule->path.row, QString::fromLatin1(rule->to), changed);
    }
}

void Values::setAll(Moment moment, Changes* changed)
{
    for (const Sets& rule : table().sets) {
        if (rule.moment != moment || !holds(rule.when) || !holds(rule.also))
            continue;
        const int row = rule.path.row;
        QString held = QString::fromLatin1(rule.to);
        for (int i = 0; setting(row).is<Digits>() && i < std::min(held.size(), values_[row].size()); ++i) {
            if (held[i] == QLatin1Char('*'))
                held[i] = values_[row][i];
        }
        put(row, held, changed);
    }
}

void Values::put(int row, const QString& value, Changes* changed)
{
    if (values_[row] == value)
        return;
    values_[row] = value;
    if (changed && std::find(changed->begin(), changed->end(), row) == changed->end())
        changed->push_back(row);
}

// Sets a value, and moves what has to keep its distance from it or cannot have the same one.
void Values::assign(int row, const QString& value, Changes* changed)
{
    const QString before = values_[row];
    put(row, value, changed);
    keepDistances(row, changed);
    if (before == value)
        return;
    startOver(row, changed);
    for (const SharedList& list : layout_->sharedLists) {
        if (list.triggers[row])
            keepShared(list, row, before, changed);
    }
}

// Lists that follow the value of the row.
void Values::startOver(int row, Changes* changed)
{
    for (const RangeWhen* rule : layout_->rows[row].startOver)
        put(rule->path.row, firstOffered(*choice(rule->path.row), limits(rule->path.row)), changed);
}

// Whether what `other` holds is gone from the list of `member`.
bool Values::takes(const SharedList::Member& other, const SharedList::Member& member) const
{
    const auto split = [&](const SharedList::Member& of) { return value(of.rule->split.row); };
    return other.holder != member.holder && (!member.rule->split || split(other) == split(member)) &&
           counts(*other.rule);
}

QStringList Values::takenFrom(const SharedList& list, const SharedList::Member& member) const
{
    QStringList taken;
    for (const SharedList::Member& other : list.members) {
        if (takes(other, member))
            taken << values_[other.rule->path.row];
    }
    return taken;
}

QString Values::yielded(const SharedList& list, const SharedList::Member& member, int row,
                        const QString& before)
{
    const int own = member.rule->path.row;
    const Limits now = limits(own);
    if (row < 0)
        return nextOffered(*choice(own), values_[own], now);
    const QString value = std::exchange(values_[row], before);
    Limits both = now;
    both.taken += takenFrom(list, member);
    values_[row] = value;
    const QString next = nextOffered(*choice(own), values_[own], both);
    return isNoItem(*choice(own), next) ? nextOffered(*choice(own), values_[own], now) : next;
}

void Values::keepShared(const SharedList& list, int row, const QString& before, Changes* changed)
{
    for (const SharedList::Member& member : list.members) {
        const int own = member.rule->path.row;
        const QString value = values_[own];
        const bool holdsNothing = isNoItem(*choice(own), value);
        const auto isTakenBy = [&](const SharedList::Member& other) {
            return values_[other.rule->path.row] == value && takes(other, member);
        };
        if (counts(*member.rule)) {
            if (holdsNothing)
                put(own, firstOffered(*choice(own), limits(own)), changed);
        } else if (!holdsNothing && std::any_of(list.members.begin(), list.members.end(), isTakenBy)) {
            put(own, yielded(list, member, row, before), changed);
        }
    }
}

void Values::keepDistances(int row, Changes* changed)
{
    for (const Distance* rule : layout_->rows[row].distances) {
        const int low = rule->first.row;
        const int high = rule->second.row;
        const Number& lowest = *setting(low).number();
        const Number& highest = *setting(high).number();
        const double lowBefore = shownNumber(lowest, values_[low]);
        const double highBefore = shownNumber(highest, values_[high]);
        double first = lowBefore;
        double second = highBefore;
        const double gap = gapOf(*rule);
        const double tiny = 1e-9;
        if (row == low) {
            first = std::min(first, highest.most - gap);
            second = std::max(second, first + gap);
        } else if (row == high) {
            second = std::max(second, lowest.least + gap);
            first = std::min(first, second - gap);
        } else if (second - first < gap - tiny) {
            if (first - gap >= lowest.least)
                first = second - gap;
            else
                second = first + gap;
        }
        if (first != lowBefore)
            put(low, fileNumber(lowest, first), changed);
        if (second != highBefore)
            put(high, fileNumber(highest, second), changed);
    }
}

double Values::gapOf(const Distance& rule) const
{
    return rule.gap + (rule.gapFrom ? values_[rule.gapFrom.row].toDouble() : 0);
}

// Which preset a read has come to.
void Values::settle(const Presets& presets)
{
    const int trigger = presets.trigger.row;
    const Choice& list = *choice(trigger);
    const auto agrees = [&](const PresetRow& row) {
        for (std::size_t field = 0; field < presets.fields.size(); ++field) {
            const char* value = row.values[field];
            if (value && values_[presets.fields[field].row] != QLatin1String(value))
                return false;
        }
        return std::any_of(list.codes.begin(), list.codes.end(), [&](const Code& code) {
            return std::string_view(code.code) == row.code && offersCode(code, limits(trigger));
        });
    };
    const auto found = std::find_if(presets.rows.begin(), presets.rows.end(), agrees);
    if (found != presets.rows.end())
        values_[trigger] = QString::fromLatin1(found->code);
    else if (presets.other)
        values_[trigger] = QString::fromLatin1(presets.other);
    const PresetRow* held = presets.settles ? rowOf(presets, values_[trigger]) : nullptr;
    for (std::size_t field = 0; held && field < presets.fields.size(); ++field) {
        if (held->values[field])
            values_[presets.fields[field].row] = QString::fromUtf8(held->values[field]);
    }
}

} // namespace vlk
