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
    changed.reserve(8); // more than most edits change
    if (row < 0 || row >= count())
        return changed;
    change(holder(row), text, &changed);
    setAll(layout_->always, &changed);
    return changed;
}

void Values::change(int row, const QString& text, Changes* changed)
{
    const TableLayout::Row& place = layout_->rows[row];
    const QString value = normalised(row, text, limits(row), Source::edit);
    if ((value == values_[row] && place.presets.empty()) ||
        std::find(editing_.begin(), editing_.end(), row) != editing_.end())
        return;
    editing_.push_back(row);
    const QString before = values_[row];
    assign(row, value, changed);
    for (const RangeWhen* rule : place.follows) {
        const int ranged = rule->path.row;
        if (!rule->startsOver)
            put(ranged, normalised(ranged, values_[ranged], limits(ranged)), changed);
    }
    setBy(row, false, before, changed);
    for (const Presets* rule : place.presets) {
        const PresetRow* chosen = rowOf(*rule, value);
        for (std::size_t field = 0; chosen && field < rule->fields.size(); ++field) {
            if (chosen->values[field])
                change(rule->fields[field].row, QString::fromUtf8(chosen->values[field]), changed);
        }
    }
    editing_.pop_back();
}

void Values::setBy(int row, bool isRead, const QString& before, Changes* changed)
{
    for (const Sets* rule : layout_->rows[row].sets) {
        if ((isRead && rule->moment != Moment::editOrRead) || !holdsToo(*rule))
            continue;
        const QString now = std::exchange(values_[row], before);
        const bool heldBefore = rule->isOnset && holds(rule->when);
        values_[row] = now;
        if (!heldBefore)
            change(rule->path.row, QString::fromLatin1(rule->to), changed);
    }
}

QString Values::laidOver(const QString& value, const char* to)
{
    const QLatin1String pattern(to);
    if (!pattern.contains(QLatin1Char('*')))
        return pattern;
    QString text = value;
    for (int i = 0; i < std::min(text.size(), pattern.size()); ++i) {
        if (pattern[i] != QLatin1Char('*'))
            text[i] = pattern[i];
    }
    return text;
}

void Values::setAll(const std::vector<const Sets*>& rules, Changes* changed)
{
    for (const Sets* rule : rules) {
        if (holdsToo(*rule))
            put(rule->path.row, laidOver(values_[rule->path.row], rule->to), changed);
    }
}

bool Values::put(int row, const QString& value, Changes* changed)
{
    if (values_[row] == value)
        return false;
    values_[row] = value;
    if (changed && std::find(changed->begin(), changed->end(), row) == changed->end())
        changed->push_back(row);
    return true;
}

void Values::assign(int row, const QString& value, Changes* changed)
{
    const TableLayout::Row& place = layout_->rows[row];
    const QString before = values_[row];
    const bool isNew = put(row, value, changed);
    if (!place.distances.empty())
        keepDistances(row, changed);
    if (!isNew)
        return;
    for (const RangeWhen* rule : place.follows) {
        const int list = rule->path.row;
        if (rule->startsOver)
            put(list, offeredCode(*choice(list), limits(list)), changed);
    }
    for (const SharedList* list : place.lists)
        keepShared(*list, row, before, changed);
}

bool Values::takes(const Sharer& other, const Sharer& sharer) const
{
    const auto split = [&](const Sharer& of) -> const QString& { return value(of.rule->split.row); };
    return other.holder != sharer.holder && (!sharer.rule->split || split(other) == split(sharer)) &&
           holdsToo(*other.rule);
}

QStringList Values::takenFrom(const SharedList& list, const Sharer& sharer) const
{
    QStringList taken;
    for (const Sharer& other : list) {
        if (takes(other, sharer))
            taken << values_[other.rule->path.row];
    }
    return taken;
}

void Values::keepShared(const SharedList& list, int row, const QString& before, Changes* changed)
{
    for (const Sharer& sharer : list) {
        const int own = sharer.rule->path.row;
        const QString value = values_[own];
        const bool holdsNothing = isNoItem(*choice(own), value);
        const auto isTakenBy = [&](const Sharer& other) {
            return values_[other.rule->path.row] == value && takes(other, sharer);
        };
        if (holdsToo(*sharer.rule)) {
            if (holdsNothing)
                put(own, offeredCode(*choice(own), limits(own)), changed);
        } else if (!holdsNothing && std::any_of(list.begin(), list.end(), isTakenBy)) {
            put(own, yielded(list, sharer, row, before), changed);
        }
    }
}

QString Values::yielded(const SharedList& list, const Sharer& sharer, int row, const QString& before)
{
    const int own = sharer.rule->path.row;
    const Limits now = limits(own);
    Limits both = now;
    if (row >= 0) {
        const QString value = std::exchange(values_[row], before);
        both.taken += takenFrom(list, sharer);
        values_[row] = value;
    }
    const QString next = offeredCode(*choice(own), both, &values_[own]);
    return isNoItem(*choice(own), next) ? offeredCode(*choice(own), now, &values_[own]) : next;
}

void Values::keepDistances(int row, Changes* changed)
{
    for (const Distance* rule : layout_->rows[row].distances) {
        const Number& lowest = *setting(rule->first.row).number();
        const Number& highest = *setting(rule->second.row).number();
        const double lowBefore = shownNumber(lowest, values_[rule->first.row]);
        const double highBefore = shownNumber(highest, values_[rule->second.row]);
        const double gap = gapOf(*rule);
        const double tiny = 1e-9;
        double first = lowBefore;
        double second = highBefore;
        if (row == rule->first.row) {
            first = std::min(first, highest.most - gap);
            second = std::max(second, first + gap);
        } else if (row == rule->second.row) {
            second = std::max(second, lowest.least + gap);
            first = std::min(first, second - gap);
        } else if (second - first < gap - tiny) {
            if (first - gap >= lowest.least)
                first = second - gap;
            else
                second = first + gap;
        }
        if (first != lowBefore)
            put(rule->first.row, fileNumber(lowest, first), changed);
        if (second != highBefore)
            put(rule->second.row, fileNumber(highest, second), changed);
    }
}

double Values::gapOf(const Distance& rule) const
{
    return rule.gap + (rule.gapFrom ? values_[rule.gapFrom.row].toDouble() : 0);
}

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
