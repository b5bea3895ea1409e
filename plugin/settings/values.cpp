#include "settings/configuration.h"

#include <algorithm>

namespace vlk {

Configuration::Configuration(const std::vector<const SettingsTable*>& tables)
{
    for (const SettingsTable* table : tables) {
        const TableLayout& layout = layoutOf(*table);
        const int first = count();
        parts_.push_back({&layout, first});
        values_.resize(values_.size() + layout.rows.size());
        partOfIndex_.resize(values_.size(), static_cast<int>(parts_.size()) - 1);
        for (std::size_t row = 0; row < layout.rows.size(); ++row)
            byPath_.insert(layout.rows[row].path, first + static_cast<int>(row));
    }
    // A choice that keeps its value and a row that a reset leaves alone start at their load defaults.
    for (int i = 0; i < count(); ++i)
        values_[i] = loadDefault(setting(i));
    reset();
    for (int i = 0; i < count(); ++i) {
        if (setting(i).resets == Setting::Reset::keeps)
            values_[i] = normalise(setting(i), loadDefault(setting(i)), {}, limits(i)).value;
    }
}

const Configuration::Part& Configuration::partOf(int index) const
{
    return parts_[partOfIndex_.at(index)];
}

const Configuration::Part& Configuration::partOf(const SettingsTable& table) const
{
    const auto found = std::find_if(parts_.begin(), parts_.end(),
                                    [&](const Part& part) { return part.layout->table == &table; });
    Q_ASSERT(found != parts_.end());
    return *found;
}

int Configuration::firstOf(const SettingsTable& table) const
{
    return partOf(table).first;
}

const TableLayout::Row& Configuration::row(int index) const
{
    const Part& part = partOf(index);
    return part.layout->rows[index - part.first];
}

const QString& Configuration::value(int index) const
{
    static const QString none;
    if (index < 0 || index >= count())
        return none;
    return values_[holder(index)];
}

int Configuration::holder(int index) const
{
    const Part& part = partOf(index);
    return part.first + part.layout->rows[index - part.first].target;
}

bool Configuration::isWritten(int index) const
{
    const Part& part = partOf(index);
    const TableLayout::Row& row = part.layout->rows[index - part.first];
    return row.setting->stored && holds(part, row.present) &&
           (row.group < 0 || holds(part, part.layout->groups[row.group].present));
}

bool Configuration::isWritten(const Part& part, const TableLayout::Group& group) const
{
    if (!group.unlessEmpty)
        return true;
    for (int row = group.firstRow; row < group.endRow; ++row) {
        const TableLayout::Row& place = part.layout->rows[row];
        if (place.setting->stored && holds(part, place.present))
            return true;
    }
    return false;
}

QString Configuration::written(int index, const QString& value) const
{
    const Part& part = partOf(index);
    const TableLayout::Row& row = part.layout->rows[index - part.first];
    if (!holds(part, row.free))
        return QString::fromLatin1(row.setting->otherwise);
    QString text = row.setting->blankIsZero && value.isEmpty() ? QStringLiteral("0") : value;
    for (const TableLayout::MaskPositions& rule : part.layout->masks) {
        if (part.first + rule.row != index || !holds(part, rule.when))
            continue;
        for (const int position : rule.rule->positions) {
            if (position < text.size())
                text[position] = QLatin1Char(rule.rule->to);
        }
    }
    return text;
}

bool Configuration::isOneOf(const QString& value, const TableLayout::Condition& condition)
{
    const bool is = condition.codes.isEmpty() ? !value.isEmpty() && value != QLatin1String("0")
                                              : condition.codes.contains(value);
    return is != condition.negated;
}

bool Configuration::holds(const Part& part, const TableLayout::Condition& condition) const
{
    if (condition.row < 0)
        return true;
    const QString& value = this->value(part.first + condition.row);
    if (condition.other >= 0)
        return (value == this->value(part.first + condition.other)) != condition.negated;
    return isOneOf(value, condition);
}

bool Configuration::holds(const Part& part, const std::vector<TableLayout::Condition>& all) const
{
    return std::all_of(all.begin(), all.end(),
                       [&](const TableLayout::Condition& condition) { return holds(part, condition); });
}

bool Configuration::holds(const SettingsTable& table, const TableLayout::Enable& rule) const
{
    const Part& part = partOf(table);
    const auto one = [&](const TableLayout::Condition& condition) { return holds(part, condition); };
    return rule.any ? std::any_of(rule.when.begin(), rule.when.end(), one) : holds(part, rule.when);
}

bool Configuration::holds(const SettingsTable& table, const TableLayout::Doubt& rule) const
{
    return holds(partOf(table), rule.when);
}

Limits Configuration::limits(int index) const
{
    const Part& part = partOf(index);
    const int row = part.layout->rows[index - part.first].target;
    Limits limits = ownLimits(part, row);
    for (const TableLayout::SoleList& list : part.layout->soleLists) {
        if (!list.triggers[row])
            continue;
        for (const TableLayout::Sole& sole : list.soles) {
            if (sole.row == row)
                limits.taken = takenFrom(part, list, sole);
        }
    }
    return limits;
}

// Whatever other settings of a shared list hold.
Limits Configuration::ownLimits(const Part& part, int row) const
{
    const Setting& setting = *part.layout->rows[row].setting;
    Limits limits{setting.least, setting.most};
    for (const int index : part.layout->rows[row].ranges) {
        const TableLayout::RangeWhen& rule = part.layout->ranges[index];
        if (holds(part, rule.when))
            limits = {rule.rule->least, rule.rule->most, rule.rule->offers};
    }
    // Each of two handles leaves the other one its room.
    for (const int index : part.layout->rows[row].distances) {
        const TableLayout::Distance& rule = part.layout->distances[index];
        if (rule.gapFrom < 0 && row == rule.first)
            limits.most = part.layout->rows[rule.second].setting->most - rule.gap;
        else if (rule.gapFrom < 0 && row == rule.second)
            limits.least = part.layout->rows[rule.first].setting->least + rule.gap;
    }
    return limits;
}

const char* Configuration::unitKey(int index) const
{
    const Part& part = partOf(index);
    const int row = part.layout->rows[index - part.first].target;
    const char* unit = part.layout->rows[row].setting->unitKey;
    for (const int ranged : part.layout->rows[row].ranges) {
        const TableLayout::RangeWhen& rule = part.layout->ranges[ranged];
        if (rule.rule->unit && holds(part, rule.when))
            unit = rule.rule->unit;
    }
    return unit;
}

void Configuration::reset()
{
    for (const Part& part : parts_)
        resetPart(part);
}

void Configuration::reset(const SettingsTable& table)
{
    resetPart(partOf(table));
}

void Configuration::resetRow(const Part& part, int row)
{
    const Setting& setting = *part.layout->rows[row].setting;
    if (setting.resets == Setting::Reset::keeps || setting.kind == Kind::link)
        return;
    const int index = part.first + row;
    const QString reset = resetValue(setting);
    values_[index] = setting.none && reset == QLatin1String(setting.none)
                         ? reset
                         : normalise(setting, reset, values_[index], ownLimits(part, row)).value;
}

void Configuration::resetPart(const Part& part)
{
    const int rows = static_cast<int>(part.layout->rows.size());
    for (int row = 0; row < rows; ++row)
        resetRow(part, row);
    for (const TableLayout::SoleList& list : part.layout->soleLists)
        keepSoles(part, list, -1, {}, nullptr);
    for (const TableLayout::Distance& rule : part.layout->distances) {
        if (rule.gapFrom >= 0)
            keepDistances(part, rule.gapFrom, nullptr);
    }
    keepBounds(part, nullptr);
}

void Configuration::resetUnder(const SettingsTable& table, const QString& owner, const QString& code)
{
    const Part& part = partOf(table);
    const int ownerRow = indexOf(owner) - part.first;
    for (const TableLayout::Group& group : part.layout->groups) {
        const bool isOf = std::any_of(group.present.begin(), group.present.end(), [&](const auto& condition) {
            return condition.row == ownerRow && isOneOf(code, condition);
        });
        if (!isOf)
            continue;
        for (int row = group.firstRow; row < group.endRow; ++row)
            resetRow(part, row);
    }
    for (const TableLayout::SoleList& list : part.layout->soleLists)
        keepSoles(part, list, -1, {}, nullptr);
}

std::vector<Difference> Configuration::differences(const Configuration& other) const
{
    std::vector<Difference> all;
    for (int i = 0; i < count() && i < other.count(); ++i) {
        const QString before = isWritten(i) ? written(i) : QString();
        const QString after = other.isWritten(i) ? other.written(i) : QString();
        if (setting(i).stored && before != after)
            all.push_back({i, before, after});
    }
    return all;
}

} // namespace vlk
