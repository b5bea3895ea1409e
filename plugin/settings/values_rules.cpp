// What settings do to each other: on edits, on reads, and at any time.

#include "settings/configuration.h"

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

std::vector<int> Configuration::edit(int index, const QString& text)
{
    std::vector<int> changed;
    const Part& part = partOf(index);
    change(part, part.layout->rows[index - part.first].target, text, &changed);
    keepBounds(part, &changed);
    return changed;
}

void Configuration::change(const Part& part, int row, const QString& text, std::vector<int>* changed)
{
    const int index = part.first + row;
    const Setting& setting = *part.layout->rows[row].setting;
    // A list without a current item is nothing that a file could ask for.
    const bool noItem = setting.none && text == QLatin1String(setting.none);
    const QString value =
        noItem ? text : normalise(setting, text, values_[index], limits(index), Source::edit).value;
    const auto& ready = part.layout->presets;
    const bool triggers =
        std::any_of(ready.begin(), ready.end(), [row](const auto& rule) { return rule.trigger == row; });
    if ((value == values_[index] && !triggers) ||
        std::find(editing_.begin(), editing_.end(), index) != editing_.end())
        return;
    editing_.push_back(index);
    const QString before = values_[index];
    assign(part, row, value, changed);
    // Another range may hold now.
    for (const TableLayout::RangeWhen& rule : part.layout->ranges) {
        if (rule.when.row != row || rule.rule->startsOver)
            continue;
        const int ranged = part.first + rule.row;
        const Setting& limited = *part.layout->rows[rule.row].setting;
        put(ranged, normalise(limited, values_[ranged], values_[ranged], limits(ranged)).value, changed);
    }
    pull(part, row, false, before, changed);
    for (const TableLayout::Presets& presets : ready) {
        const PresetRow* chosen = presets.trigger == row ? rowOf(presets, value) : nullptr;
        for (std::size_t field = 0; chosen && field < presets.fields.size(); ++field) {
            if (chosen->values[field])
                change(part, presets.fields[field], QString::fromUtf8(chosen->values[field]), changed);
        }
    }
    editing_.pop_back();
}

void Configuration::pull(const Part& part, int row, bool onRead, const QString& before,
                         std::vector<int>* changed)
{
    std::vector<int> local;
    const auto heldBefore = [&](const TableLayout::Pull& rule) {
        return rule.onset && isOneOf(before, rule.when);
    };
    for (const int index : part.layout->rows[row].pulls) {
        const TableLayout::Pull& rule = part.layout->pulls[index];
        if ((rule.onRead || !onRead) && holds(part, rule.when) && holds(part, rule.also) && !heldBefore(rule))
            change(part, rule.set, rule.to, changed ? changed : &local);
    }
}

void Configuration::put(int index, const QString& value, std::vector<int>* changed)
{
    if (values_[index] == value)
        return;
    values_[index] = value;
    if (changed && std::find(changed->begin(), changed->end(), index) == changed->end())
        changed->push_back(index);
}

// Sets a value, and moves what has to keep its distance from it or cannot have the same one.
void Configuration::assign(const Part& part, int row, const QString& value, std::vector<int>* changed)
{
    const QString before = values_[part.first + row];
    const bool isNew = before != value;
    if (isNew)
        put(part.first + row, value, changed);
    keepDistances(part, row, changed);
    if (!isNew)
        return;
    startOver(part, row, changed);
    for (const TableLayout::SoleList& list : part.layout->soleLists) {
        if (list.triggers[row])
            keepSoles(part, list, row, before, changed);
    }
}

// Lists that follow the value of the row.
void Configuration::startOver(const Part& part, int row, std::vector<int>* changed)
{
    for (const int rule : part.layout->rows[row].startOver) {
        const int index = part.first + part.layout->ranges[rule].row;
        put(index, firstOffered(setting(index), limits(index)), changed);
    }
}

bool Configuration::counts(const Part& part, const TableLayout::Sole& sole) const
{
    return holds(part, sole.when) && holds(part, sole.also);
}

// Whether what `other` holds is gone from the list of `sole`.
bool Configuration::takes(const Part& part, const TableLayout::Sole& other,
                          const TableLayout::Sole& sole) const
{
    const bool apart =
        other.holder == sole.holder ||
        (sole.split >= 0 && values_[part.first + other.split] != values_[part.first + sole.split]);
    return !apart && counts(part, other);
}

QStringList Configuration::takenFrom(const Part& part, const TableLayout::SoleList& list,
                                     const TableLayout::Sole& sole) const
{
    QStringList taken;
    for (const TableLayout::Sole& other : list.soles) {
        if (takes(part, other, sole))
            taken << values_[part.first + other.row];
    }
    return taken;
}

QString Configuration::yielded(const Part& part, const TableLayout::SoleList& list,
                               const TableLayout::Sole& sole, int row, const QString& before)
{
    const int index = part.first + sole.row;
    const QString none = QString::fromLatin1(setting(index).none);
    const Limits now = limits(index);
    if (row < 0)
        return nextOffered(setting(index), values_[index], now);
    const QString value = std::exchange(values_[part.first + row], before);
    Limits both = now;
    both.taken += takenFrom(part, list, sole);
    values_[part.first + row] = value;
    const QString next = nextOffered(setting(index), values_[index], both);
    return next == none ? nextOffered(setting(index), values_[index], now) : next;
}

void Configuration::keepSoles(const Part& part, const TableLayout::SoleList& list, int row,
                              const QString& before, std::vector<int>* changed)
{
    for (const TableLayout::Sole& sole : list.soles) {
        const int index = part.first + sole.row;
        const QString value = values_[index];
        const bool holdsNothing = setting(index).none && value == QLatin1String(setting(index).none);
        const auto isTakenBy = [&](const TableLayout::Sole& other) {
            return values_[part.first + other.row] == value && takes(part, other, sole);
        };
        if (counts(part, sole)) {
            if (holdsNothing)
                put(index, firstOffered(setting(index), limits(index)), changed);
        } else if (!holdsNothing && std::any_of(list.soles.begin(), list.soles.end(), isTakenBy)) {
            put(index, yielded(part, list, sole, row, before), changed);
        }
    }
}

void Configuration::keepDistances(const Part& part, int row, std::vector<int>* changed)
{
    for (const int index : part.layout->rows[row].distances) {
        const TableLayout::Distance& rule = part.layout->distances[index];
        const Setting& low = *part.layout->rows[rule.first].setting;
        const Setting& high = *part.layout->rows[rule.second].setting;
        const int lowIndex = part.first + rule.first;
        const int highIndex = part.first + rule.second;
        const double lowBefore = shownNumber(low, values_[lowIndex]);
        const double highBefore = shownNumber(high, values_[highIndex]);
        double first = lowBefore;
        double second = highBefore;
        const double gap = gapOf(part, rule);
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
            put(lowIndex, fileNumber(low, first), changed);
        if (second != highBefore)
            put(highIndex, fileNumber(high, second), changed);
    }
}

void Configuration::keepBounds(const Part& part, std::vector<int>* changed)
{
    for (const TableLayout::Bound& rule : part.layout->bounds) {
        if (!holds(part, rule.when))
            continue;
        const int index = part.first + rule.row;
        QString held = rule.to;
        if (part.layout->rows[rule.row].setting->kind == Kind::digits) {
            for (int i = 0; i < held.size() && i < values_[index].size(); ++i) {
                if (held[i] == QLatin1Char('*'))
                    held[i] = values_[index][i];
            }
        }
        put(index, held, changed);
    }
}

double Configuration::gapOf(const SettingsTable& table, const TableLayout::Distance& rule) const
{
    return gapOf(partOf(table), rule);
}

double Configuration::gapOf(const Part& part, const TableLayout::Distance& rule) const
{
    return rule.gap + (rule.gapFrom >= 0 ? values_[part.first + rule.gapFrom].toDouble() : 0);
}

// Settings that the file has no key for, from those that it has.
void Configuration::derive(const Part& part)
{
    for (const TableLayout::Derived& rule : part.layout->derived) {
        const bool on = std::any_of(rule.any.begin(), rule.any.end(),
                                    [&](const auto& condition) { return holds(part, condition); });
        values_[part.first + rule.row] = QLatin1String(on ? "1" : "0");
    }
    for (const TableLayout::Presets& presets : part.layout->presets) {
        if (presets.rule->other || presets.rule->settles)
            settle(part, presets);
    }
}

void Configuration::settle(const Part& part, const TableLayout::Presets& presets)
{
    const int trigger = part.first + presets.trigger;
    const auto agrees = [&](const PresetRow& row) {
        for (std::size_t field = 0; field < presets.fields.size(); ++field) {
            const char* value = row.values[field];
            if (value && values_[part.first + presets.fields[field]] != QLatin1String(value))
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
            values_[part.first + presets.fields[field]] = QString::fromUtf8(held->values[field]);
    }
}

} // namespace vlk
