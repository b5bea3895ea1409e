#include "settings/values.h"

#include <algorithm>

namespace vlk {

Values::Values(const SettingsTable& table) : layout_(&layoutOf(table)), values_(layout_->rows.size())
{
    // A choice that keeps its value and a row that a reset leaves alone start at their load defaults.
    for (int row = 0; row < count(); ++row)
        values_[row] = loadDefault(setting(row));
    reset();
    for (int row = 0; row < count(); ++row) {
        if (setting(row).resets == Setting::Reset::keeps)
            values_[row] = normalise(setting(row), loadDefault(setting(row)), {}, limits(row)).value;
    }
}

const QString& Values::value(int row) const
{
    static const QString none;
    if (row < 0 || row >= count())
        return none;
    return values_[holder(row)];
}

bool Values::isWritten(int row) const
{
    const TableLayout::Row& place = layout_->rows[row];
    return place.setting->stored && holds(place.present) &&
           (place.group < 0 || holds(layout_->groups[place.group].present));
}

bool Values::isWritten(const TableLayout::Group& group) const
{
    if (!group.unlessEmpty)
        return true;
    for (int row = group.firstRow; row < group.endRow; ++row) {
        const TableLayout::Row& place = layout_->rows[row];
        if (place.setting->stored && holds(place.present))
            return true;
    }
    return false;
}

QString Values::written(int row, const QString& value) const
{
    const TableLayout::Row& place = layout_->rows[row];
    if (!holds(place.free))
        return QString::fromLatin1(place.setting->otherwise);
    QString text = place.setting->blankIsZero && value.isEmpty() ? QStringLiteral("0") : value;
    for (const TableLayout::MaskPositions& rule : layout_->masks) {
        if (rule.row != row || !holds(rule.when))
            continue;
        for (const int position : rule.rule->positions) {
            if (position < text.size())
                text[position] = QLatin1Char(rule.rule->to);
        }
    }
    return text;
}

bool Values::isOneOf(const QString& value, const TableLayout::Condition& condition)
{
    const bool is = condition.codes.isEmpty() ? !value.isEmpty() && value != QLatin1String("0")
                                              : condition.codes.contains(value);
    return is != condition.negated;
}

bool Values::holds(const TableLayout::Condition& condition) const
{
    if (condition.row < 0)
        return true;
    const QString& value = this->value(condition.row);
    if (condition.other >= 0)
        return (value == this->value(condition.other)) != condition.negated;
    return isOneOf(value, condition);
}

bool Values::holds(const std::vector<TableLayout::Condition>& all) const
{
    return std::all_of(all.begin(), all.end(),
                       [&](const TableLayout::Condition& condition) { return holds(condition); });
}

bool Values::holds(const TableLayout::Enable& rule) const
{
    const auto one = [&](const TableLayout::Condition& condition) { return holds(condition); };
    return rule.any ? std::any_of(rule.when.begin(), rule.when.end(), one) : holds(rule.when);
}

Limits Values::limits(int row) const
{
    row = holder(row);
    Limits limits = ownLimits(row);
    for (const TableLayout::SoleList& list : layout_->soleLists) {
        if (!list.triggers[row])
            continue;
        for (const TableLayout::Sole& sole : list.soles) {
            if (sole.row == row)
                limits.taken = takenFrom(list, sole);
        }
    }
    return limits;
}

// Whatever other settings of a shared list hold.
Limits Values::ownLimits(int row) const
{
    const Setting& setting = this->setting(row);
    Limits limits{setting.least, setting.most};
    for (const int index : layout_->rows[row].ranges) {
        const TableLayout::RangeWhen& rule = layout_->ranges[index];
        if (holds(rule.when))
            limits = {rule.rule->least, rule.rule->most, rule.rule->offers};
    }
    // Each of two handles leaves the other one its room.
    for (const int index : layout_->rows[row].distances) {
        const TableLayout::Distance& rule = layout_->distances[index];
        if (rule.gapFrom < 0 && row == rule.first)
            limits.most = this->setting(rule.second).most - rule.gap;
        else if (rule.gapFrom < 0 && row == rule.second)
            limits.least = this->setting(rule.first).least + rule.gap;
    }
    return limits;
}

const char* Values::unitKey(int row) const
{
    row = holder(row);
    const char* unit = setting(row).unitKey;
    for (const int ranged : layout_->rows[row].ranges) {
        const TableLayout::RangeWhen& rule = layout_->ranges[ranged];
        if (rule.rule->unit && holds(rule.when))
            unit = rule.rule->unit;
    }
    return unit;
}

void Values::resetRow(int row)
{
    const Setting& setting = this->setting(row);
    if (setting.resets == Setting::Reset::keeps || setting.kind == Kind::link)
        return;
    const QString reset = resetValue(setting);
    values_[row] = setting.none && reset == QLatin1String(setting.none)
                       ? reset
                       : normalise(setting, reset, values_[row], ownLimits(row)).value;
}

void Values::reset()
{
    for (int row = 0; row < count(); ++row)
        resetRow(row);
    for (const TableLayout::SoleList& list : layout_->soleLists)
        keepSoles(list, -1, {}, nullptr);
    for (const TableLayout::Distance& rule : layout_->distances) {
        if (rule.gapFrom >= 0)
            keepDistances(rule.gapFrom, nullptr);
    }
    keepBounds(nullptr);
}

std::vector<Difference> Values::differences(const Values& other) const
{
    std::vector<Difference> all;
    for (int row = 0; row < count(); ++row) {
        const QString before = isWritten(row) ? written(row) : QString();
        const QString after = other.isWritten(row) ? other.written(row) : QString();
        if (setting(row).stored && before != after)
            all.push_back({layout_->rows[row].path, row, before, after});
    }
    return all;
}

} // namespace vlk
