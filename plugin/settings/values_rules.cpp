// What settings do to each other: on edits, on reads, and at any time.

#include "settings/values.h"

#include <algorithm>
#include <utility>

namespace vlk {

namespace {

// The first row of this code, null where there is none.
const PresetRow* rowOf(const TableLayout::Presets& presets, const QString& code)
{
    const auto found = std::find_if(presets.rule->rows.begin(), presets.rule->rows.end(),
                                    [&](const PresetRow& row) { return code == QLatin1String(row.code); });
    return found == presets.rule->rows.end() ? nullptr : &*found;
}

} // namespace

std::vector<int> Values::edit(int row, const QString& text)
{
    std::vector<int> changed;
    change(holder(row), text, &changed);
    keepBounds(&changed);
    return changed;
}

void Values::change(int row, const QString& text, std::vector<int>* changed)
{
    const Setting& setting = this->setting(row);
    // A list without a current item is nothing that a file could ask for.
    const bool noItem = setting.none && text == QLatin1String(setting.none);
    const QString value =
        noItem ? text : normalise(setting, text, values_[row], limits(row), Source::edit).value;
    const auto& ready = layout_->presets;
    const bool triggers =
        std::any_of(ready.begin(), ready.end(), [row](const auto& rule) { return rule.trigger == row; });
    if ((value == values_[row] && !triggers) ||
        std::find(editing_.begin(), editing_.end(), row) != editing_.end())
        return;
    editing_.push_back(row);
    const QString before = values_[row];
    assign(row, value, changed);
    // Another range may hold now.
    for (const TableLayout::RangeWhen& rule : layout_->ranges) {
        if (rule.when.row != row || rule.rule->startsOver)
            continue;
        const int ranged = rule.row;
        const Setting& limited = this->setting(ranged);
        put(ranged, normalise(limited, values_[ranged], values_[ranged], limits(ranged)).value, changed);
    }
    pull(row, false, before, changed);
    for (const TableLayout::Presets& presets : ready) {
        const PresetRow* chosen = presets.trigger == row ? rowOf(presets, value) : nullptr;
        for (std::size_t field = 0; chosen && field < presets.fields.size(); ++field) {
            if (chosen->values[field])
                change(presets.fields[field], QString::fromUtf8(chosen->values[field]), changed);
        }
    }
    editing_.pop_back();
}

void Values::pull(int row, bool onRead, const QString& before, std::vector<int>* changed)
{
    std::vector<int> local;
    const auto heldBefore = [&](const TableLayout::Pull& rule) {
        return rule.onset && isOneOf(before, rule.when);
    };
    for (const int index : layout_->rows[row].pulls) {
        const TableLayout::Pull& rule = layout_->pulls[index];
        if ((rule.onRead || !onRead) && holds(rule.when) && holds(rule.also) && !heldBefore(rule))
            change(rule.set, rule.to, changed ? changed : &local);
    }
}

void Values::put(int row, const QString& value, std::vector<int>* changed)
{
    if (values_[row] == value)
        return;
    values_[row] = value;
    if (changed && std::find(changed->begin(), changed->end(), row) == changed->end())
        changed->push_back(row);
}

// Sets a value, and moves what has to keep its distance from it or cannot have the same one.
void Values::assign(int row, const QString& value, std::vector<int>* changed)
{
    const QString before = values_[row];
    const bool isNew = before != value;
    if (isNew)
        put(row, value, changed);
    keepDistances(row, changed);
    if (!isNew)
        return;
    startOver(row, changed);
    for (const TableLayout::SoleList& list : layout_->soleLists) {
        if (list.triggers[row])
            keepSoles(list, row, before, changed);
    }
}

// Lists that follow the value of the row.
void Values::startOver(int row, std::vector<int>* changed)
{
    for (const int rule : layout_->rows[row].startOver) {
        const int index = layout_->ranges[rule].row;
        put(index, firstOffered(setting(index), limits(index)), changed);
    }
}

bool Values::counts(const TableLayout::Sole& sole) const
{
    return holds(sole.when) && holds(sole.also);
}

// Whether what `other` holds is gone from the list of `sole`.
bool Values::takes(const TableLayout::Sole& other, const TableLayout::Sole& sole) const
{
    const bool apart =
        other.holder == sole.holder || (sole.split >= 0 && values_[other.split] != values_[sole.split]);
    return !apart && counts(other);
}

QStringList Values::takenFrom(const TableLayout::SoleList& list, const TableLayout::Sole& sole) const
{
    QStringList taken;
    for (const TableLayout::Sole& other : list.soles) {
        if (takes(other, sole))
            taken << values_[other.row];
    }
    return taken;
}

QString Values::yielded(const TableLayout::SoleList& list, const TableLayout::Sole& sole, int row,
                        const QString& before)
{
    const int index = sole.row;
    const QString none = QString::fromLatin1(setting(index).none);
    const Limits now = limits(index);
    if (row < 0)
        return nextOffered(setting(index), values_[index], now);
    const QString value = std::exchange(values_[row], before);
    Limits both = now;
    both.taken += takenFrom(list, sole);
    values_[row] = value;
    const QString next = nextOffered(setting(index), values_[index], both);
    return next == none ? nextOffered(setting(index), values_[index], now) : next;
}

void Values::keepSoles(const TableLayout::SoleList& list, int row, const QString& before,
                       std::vector<int>* changed)
{
    for (const TableLayout::Sole& sole : list.soles) {
        const int index = sole.row;
        const QString value = values_[index];
        const bool holdsNothing = setting(index).none && value == QLatin1String(setting(index).none);
        const auto isTakenBy = [&](const TableLayout::Sole& other) {
            return values_[other.row] == value && takes(other, sole);
        };
        if (counts(sole)) {
            if (holdsNothing)
                put(index, firstOffered(setting(index), limits(index)), changed);
        } else if (!holdsNothing && std::any_of(list.soles.begin(), list.soles.end(), isTakenBy)) {
            put(index, yielded(list, sole, row, before), changed);
        }
    }
}

void Values::keepDistances(int row, std::vector<int>* changed)
{
    for (const int index : layout_->rows[row].distances) {
        const TableLayout::Distance& rule = layout_->distances[index];
        const Setting& low = setting(rule.first);
        const Setting& high = setting(rule.second);
        const double lowBefore = shownNumber(low, values_[rule.first]);
        const double highBefore = shownNumber(high, values_[rule.second]);
        double first = lowBefore;
        double second = highBefore;
        const double gap = gapOf(rule);
        const double tiny = 1e-9;
        if (row == rule.first) {
            first = std::min(first, high.most - gap);
            second = std::max(second, first + gap);
        } else if (row == rule.second) {
            second = std::max(second, low.least + gap);
            first = std::min(first, second - gap);
        } else if (second - first < gap - tiny) {
            if (first - gap >= low.least)
                first = second - gap;
            else
                second = first + gap;
        }
        if (first != lowBefore)
            put(rule.first, fileNumber(low, first), changed);
        if (second != highBefore)
            put(rule.second, fileNumber(high, second), changed);
    }
}

void Values::keepBounds(std::vector<int>* changed)
{
    for (const TableLayout::Bound& rule : layout_->bounds) {
        if (!holds(rule.when))
            continue;
        const int index = rule.row;
        QString held = rule.to;
        if (setting(rule.row).kind == Kind::digits) {
            for (int i = 0; i < held.size() && i < values_[index].size(); ++i) {
                if (held[i] == QLatin1Char('*'))
                    held[i] = values_[index][i];
            }
        }
        put(index, held, changed);
    }
}

double Values::gapOf(const TableLayout::Distance& rule) const
{
    return rule.gap + (rule.gapFrom >= 0 ? values_[rule.gapFrom].toDouble() : 0);
}

// Settings that the file has no key for, from those that it has.
void Values::derive()
{
    for (const TableLayout::Derived& rule : layout_->derived) {
        const bool on = std::any_of(rule.any.begin(), rule.any.end(),
                                    [&](const auto& condition) { return holds(condition); });
        values_[rule.row] = QLatin1String(on ? "1" : "0");
    }
    for (const TableLayout::Presets& presets : layout_->presets) {
        if (presets.rule->other || presets.rule->settles)
            settle(presets);
    }
}

void Values::settle(const TableLayout::Presets& presets)
{
    const int trigger = presets.trigger;
    const auto agrees = [&](const PresetRow& row) {
        for (std::size_t field = 0; field < presets.fields.size(); ++field) {
            const char* value = row.values[field];
            if (value && values_[presets.fields[field]] != QLatin1String(value))
                return false;
        }
        const auto& codes = setting(trigger).codes;
        return std::any_of(codes.begin(), codes.end(), [&](const Code& code) {
            return tables::same(code.code, row.code) &&
                   offersCode(setting(trigger), code, limits(trigger).offers);
        });
    };
    const auto found = std::find_if(presets.rule->rows.begin(), presets.rule->rows.end(), agrees);
    if (found != presets.rule->rows.end())
        values_[trigger] = QString::fromLatin1(found->code);
    else if (presets.rule->other)
        values_[trigger] = QString::fromLatin1(presets.rule->other);
    const PresetRow* held = presets.rule->settles ? rowOf(presets, values_[trigger]) : nullptr;
    for (std::size_t field = 0; held && field < presets.fields.size(); ++field) {
        if (held->values[field])
            values_[presets.fields[field]] = QString::fromUtf8(held->values[field]);
    }
}

} // namespace vlk
