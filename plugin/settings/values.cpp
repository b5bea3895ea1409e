#include "settings/values.h"

#include "base/masked_text.h"

#include <algorithm>
#include <map>

namespace vlk {

Values::Values(const SettingsTable& table) : layout_(&layoutOf(table))
{
    // Making them takes longer than reading a file, and they are the same until the language or the model is
    // another one.
    static thread_local std::map<std::pair<const SettingsTable*, QStringList>, std::vector<QString>> known;
    QStringList texts;
    for (const int row : layout_->following)
        texts << loadDefault(setting(row));
    std::vector<QString>& made = known[{&table, texts}];
    if (made.empty()) {
        for (int row = 0; row < count(); ++row)
            values_.push_back(layout_->rows[row].loadDefault());
        reset();
        made = values_;
    }
    values_ = made;
}

const QString& Values::value(int row) const
{
    static const QString none;
    return row < 0 || row >= count() ? none : values_[holder(row)];
}

bool Values::isWritten(int row) const
{
    const TableLayout::Row& place = layout_->rows[row];
    return place.base->stored && holds(place.base->present) &&
           isPresent(*layout_->elements[place.group].group);
}

QString Values::written(int row, const QString& value) const
{
    const Number* number = setting(row).number();
    QString text = number && number->blankIsZero && value.isEmpty() ? QStringLiteral("0") : value;
    for (const Sets* rule : layout_->rows[row].saves) {
        if (holdsToo(*rule))
            text = laidOver(text, QLatin1String(rule->to));
    }
    return text;
}

bool Values::holds(const When& condition) const
{
    if (condition.row < 0)
        return true;
    const QString& value = this->value(condition.row);
    const bool is = condition.same     ? value == this->value(condition.other)
                    : *condition.codes ? isListed(condition.codes, value)
                                       : !value.isEmpty() && value != QLatin1String("0");
    return is != condition.negated;
}

bool Values::holds(std::span<const When> conditions) const
{
    return std::ranges::all_of(conditions, [this](const When& condition) { return holds(condition); });
}

bool Values::holds(const Enable& rule) const
{
    const auto isMet = [this](const When& condition) { return condition && holds(condition); };
    return rule.any ? std::ranges::any_of(rule.when, isMet) : holds(rule.when);
}

Limits Values::limits(int row) const
{
    row = holder(row);
    Limits limits = ownLimits(row);
    for (const ExclusiveChoice* sharer : layout_->rows[row].sharers) {
        if (sharer->path.row == row)
            limits.taken = takenFrom(*sharer);
    }
    return limits;
}

Limits Values::ownLimits(int row) const
{
    const TableLayout::Row& place = layout_->rows[row];
    Limits limits;
    if (const Number* number = place.setting->number())
        limits = {number->least, number->most};
    else if (const Choice* choice = this->choice(row))
        limits.offers = choice->offers;
    for (const RangeWhen* rule : place.ranges) {
        if (holds(rule->when))
            limits = {rule->least, rule->most, rule->offers};
    }
    // Each of two handles leaves the other one its room.
    for (const Distance* rule : place.distances) {
        if (!rule->gapFrom && row == rule->first.row)
            limits.most = setting(rule->second.row).number()->most - rule->gap;
        else if (!rule->gapFrom && row == rule->second.row)
            limits.least = setting(rule->first.row).number()->least + rule->gap;
    }
    return limits;
}

const char* Values::unitKey(int row) const
{
    const TableLayout::Row& place = layout_->rows[holder(row)];
    const Number* number = place.setting->number();
    const char* unit = number ? number->unitKey : nullptr;
    for (const RangeWhen* rule : place.ranges) {
        if (rule->unit && holds(rule->when))
            unit = rule->unit;
    }
    return unit;
}

QString Values::normalised(int row, const QString& text, const Limits& limits, Source source) const
{
    return normalise(setting(row), {text, values_[row], limits, source});
}

void Values::reset()
{
    for (int row = 0; row < count(); ++row) {
        const Setting& setting = this->setting(row);
        if (setting.is<Link>())
            continue;
        const bool isKept = setting.base().onReset == OnReset::KeepsValue;
        const QString text = isKept ? values_[row] : resetValue(setting);
        values_[row] = normalised(row, text, ownLimits(row), Source::Edit);
    }
    for (const ExclusiveChoice& sharer : table().all<ExclusiveChoice>())
        keepShared(sharer, -1, {}, nullptr);
    for (const Distance& rule : table().all<Distance>()) {
        if (rule.gapFrom)
            keepDistances(rule.gapFrom.row, nullptr);
    }
    setAll(layout_->always, nullptr);
}

void Values::beginRead()
{
    for (const int row : layout_->anew)
        values_[row] = normalised(row, layout_->rows[row].loadDefault(), limits(row));
    for (const Distance& rule : table().all<Distance>()) {
        if (rule.gapFrom)
            values_[rule.gapFrom.row] = QStringLiteral("0");
    }
}

void Values::takeKey(int row, const std::optional<QString>& text, bool hasElement)
{
    const TableLayout::Row& place = layout_->rows[row];
    if (!text && place.base->missing == Missing::KeepsValue)
        return;
    const auto* link = place.setting->as<Link>();
    const QString read = text ? *text
                         : link && !hasElement && link->withoutElement >= 0
                             ? QString::number(link->withoutElement)
                             : place.loadDefault();
    // A link gives its value to another row, which says what the value can be.
    const int target = place.target;
    const QString before = values_[target];
    // What is held already can be what it is, unless a list or a rule says otherwise or a period wraps.
    const TableLayout::Row& held = layout_->rows[target];
    if (read != before || held.setting->is<Choice>() || held.setting->is<Period>() ||
        !(held.ranges.empty() && held.distances.empty() && held.sharers.empty()))
        assign(target, normalised(target, read, limits(target)), nullptr);
    setBy(target, true, before, nullptr);
}

void Values::endRead()
{
    setAll(layout_->afterRead, nullptr);
    for (const Presets& presets : table().all<Presets>()) {
        if (presets.other || presets.settles)
            settle(presets);
    }
    setAll(layout_->always, nullptr);
}

} // namespace vlk
