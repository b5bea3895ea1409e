// What settings do to each other. rule.h tells the order in which rules act: that of the calls in assign(),
// change() and edit().

#include "settings/values.h"

#include "base/masked_text.h"

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

// Hands the values of a code to `set`, with the rows of their fields; nothing for an unknown code.
void eachField(const Presets& presets, const QString& code, auto set)
{
    const auto found = std::ranges::find_if(
        presets.rows, [&](const PresetRow& row) { return code == QLatin1String(row.code); });
    for (std::size_t field = 0; found != presets.rows.end() && field < presets.fields.size(); ++field) {
        if (found->values[field])
            set(presets.fields[field].row, QString::fromUtf8(found->values[field]));
    }
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
    const QString value = normalised(row, text, limits(row), Source::Edit);
    if ((value == values_[row] && place.presets.empty()) || std::ranges::count(editing_, row) > 0)
        return;
    editing_.push_back(row);
    const QString before = values_[row];
    assign(row, value, changed);
    for (const RangeWhen* rule : place.follows) {
        if (const int ranged = rule->path.row; !rule->startsOver)
            put(ranged, normalised(ranged, values_[ranged], limits(ranged)), changed);
    }
    setBy(row, false, before, changed);
    for (const Presets* rule : place.presets)
        eachField(*rule, value, [&](int field, const QString& ready) { change(field, ready, changed); });
    editing_.pop_back();
}

void Values::setBy(int row, bool isRead, const QString& before, Changes* changed)
{
    for (const Sets* rule : layout_->rows[row].sets) {
        if ((isRead && rule->moment != Moment::EditOrRead) || !holdsToo(*rule))
            continue;
        const QString now = std::exchange(values_[row], before);
        const bool heldBefore = rule->isOnset && holds(rule->when);
        values_[row] = now;
        if (!heldBefore)
            change(rule->path.row, QString::fromLatin1(rule->to), changed);
    }
}

void Values::setAll(const std::vector<const Sets*>& rules, Changes* changed)
{
    for (const Sets* rule : rules) {
        if (holdsToo(*rule))
            put(rule->path.row, laidOver(values_[rule->path.row], QLatin1String(rule->to)), changed);
    }
}

bool Values::put(int row, const QString& value, Changes* changed)
{
    if (values_[row] == value)
        return false;
    values_[row] = value;
    if (changed && std::ranges::find(*changed, row) == changed->end())
        changed->push_back(row);
    return true;
}

void Values::assign(int row, const QString& value, Changes* changed)
{
    const TableLayout::Row& place = layout_->rows[row];
    const QString before = values_[row];
    const bool isNew = put(row, value, changed);
    keepDistances(row, changed);
    if (!isNew)
        return;
    for (const RangeWhen* rule : place.follows) {
        if (const int list = rule->path.row; rule->startsOver)
            put(list, offeredCode(*choice(list), limits(list)), changed);
    }
    for (const ExclusiveChoice* sharer : place.sharers)
        keepShared(*sharer, row, before, changed);
}

QStringList Values::takenFrom(const ExclusiveChoice& sharer) const
{
    QStringList taken;
    for (const ExclusiveChoice* other : layout_->rows[sharer.path.row].sharers) {
        if (other->listHash == sharer.listHash && other->holderHash != sharer.holderHash &&
            holdsToo(*other) && value(other->split.row) == value(sharer.split.row))
            taken << values_[other->path.row];
    }
    return taken;
}

void Values::keepShared(const ExclusiveChoice& sharer, int row, const QString& before, Changes* changed)
{
    const int own = sharer.path.row;
    const bool holdsNothing = isNoItem(*choice(own), values_[own]);
    if (holdsToo(sharer)) {
        if (holdsNothing)
            put(own, offeredCode(*choice(own), limits(own)), changed);
    } else if (!holdsNothing && takenFrom(sharer).contains(values_[own])) {
        put(own, yielded(sharer, row, before), changed);
    }
}

QString Values::yielded(const ExclusiveChoice& sharer, int row, const QString& before)
{
    const int own = sharer.path.row;
    const Limits now = limits(own);
    Limits both = now;
    if (row >= 0) {
        const QString value = std::exchange(values_[row], before);
        both.taken += takenFrom(sharer);
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
        double first = lowBefore;
        double second = highBefore;
        if (row == rule->first.row) {
            first = std::min(first, highest.most - gap);
            second = std::max(second, first + gap);
        } else if (row == rule->second.row) {
            second = std::max(second, lowest.least + gap);
            first = std::min(first, second - gap);
        } else if (second - first < gap - 1e-9) {
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

QString Values::presetFor(const Presets& presets, const std::function<QString(int)>& valueAt) const
{
    const int trigger = presets.trigger.row;
    const Limits offered = limits(trigger);
    const auto agrees = [&](const PresetRow& row) {
        for (std::size_t field = 0; field < presets.fields.size(); ++field) {
            const char* value = row.values[field];
            if (value && valueAt(presets.fields[field].row) != QLatin1String(value))
                return false;
        }
        const Code* code = codeOf(*choice(trigger), QString::fromLatin1(row.code));
        return code && offersCode(*code, offered);
    };
    const auto found = std::ranges::find_if(presets.rows, agrees);
    return QString::fromLatin1(found != presets.rows.end() ? found->code : presets.other);
}

void Values::settle(const Presets& presets)
{
    QString& trigger = values_[presets.trigger.row];
    if (const QString code = presetFor(presets, [this](int row) { return values_[row]; }); !code.isNull())
        trigger = code;
    if (presets.settles)
        eachField(presets, trigger, [this](int field, const QString& ready) { values_[field] = ready; });
}

} // namespace vlk
