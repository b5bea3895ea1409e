#include "settings/values.h"

#include <algorithm>
#include <map>

namespace vlk {

namespace {

bool isMet(const When& condition, const QString& value)
{
    const bool is = !*condition.codes ? !value.isEmpty() && value != QLatin1String("0")
                                      : isListed(condition.codes, value);
    return is != condition.negated;
}

} // namespace

Values::Values(const SettingsTable& table) : layout_(&layoutOf(table))
{
    // Making them takes longer than reading a file, and most are the same each time.
    struct Made
    {
        std::vector<QString> values;
        std::vector<int> following; // rows whose defaults follow the language or the model
        QStringList texts;          // their defaults then
    };
    static thread_local std::map<const SettingsTable*, Made> tables;
    const auto [place, isNew] = tables.try_emplace(&table);
    Made& made = place->second;
    for (int row = 0; isNew && row < count(); ++row) {
        if (const auto* text = setting(row).as<Text>(); text && (text->load.key || text->load.namesModel))
            made.following.push_back(row);
    }
    QStringList texts;
    for (const int row : made.following)
        texts << loadDefault(setting(row));
    if (isNew || made.texts != texts) {
        makeAll();
        made.values = values_;
        made.texts = texts;
    }
    values_ = made.values;
}

void Values::makeAll()
{
    // A choice that keeps its value and a row that a reset leaves alone start at their load defaults.
    values_.resize(layout_->rows.size());
    for (int row = 0; row < count(); ++row)
        values_[row] = loadDefault(setting(row));
    reset();
    for (int row = 0; row < count(); ++row) {
        if (layout_->rows[row].base->onReset == OnReset::keepsValue)
            values_[row] = normalised(row, values_[row], limits(row));
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
    return place.base->stored && holds(place.base->present) &&
           isPresent(*layout_->elements[place.group].group);
}

QString Values::written(int row, const QString& value) const
{
    for (const Sets* rule : layout_->rows[row].saves) {
        if (holds(rule->when))
            return QString::fromLatin1(rule->to);
    }
    const Number* number = setting(row).number();
    QString text = number && number->blankIsZero && value.isEmpty() ? QStringLiteral("0") : value;
    for (const MaskPositions& rule : table().all<MaskPositions>()) {
        if (rule.path.row != row || !holdsAll(rule.when))
            continue;
        for (const int position : rule.positions) {
            if (position < text.size())
                text[position] = QLatin1Char(rule.to);
        }
    }
    return text;
}

bool Values::holds(const When& condition) const
{
    if (condition.row < 0)
        return true;
    const QString& value = this->value(condition.row);
    return condition.same ? value == this->value(condition.other) : isMet(condition, value);
}

bool Values::holdsAll(std::span<const When> conditions) const
{
    return std::ranges::all_of(conditions, [this](const When& condition) { return holds(condition); });
}

const When* Values::missing(const Enable& rule) const
{
    const auto isMet = [this](const When& condition) { return holds(condition); };
    const auto isOneMet = [this](const When& condition) { return condition && holds(condition); };
    if (rule.any ? std::ranges::any_of(rule.when, isOneMet) : std::ranges::all_of(rule.when, isMet))
        return nullptr;
    return &*std::ranges::find_if_not(rule.when, isMet);
}

Limits Values::limits(int row) const
{
    row = holder(row);
    Limits limits = ownLimits(row);
    for (const SharedList* list : layout_->rows[row].lists) {
        for (const Sharer& sharer : *list) {
            if (sharer.rule->path.row == row)
                limits.taken = takenFrom(*list, sharer);
        }
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
    const char* unit = number ? number->unit : nullptr;
    for (const RangeWhen* rule : place.ranges) {
        if (rule->unit && holds(rule->when))
            unit = rule->unit;
    }
    return unit;
}

QString Values::normalised(int row, const QString& text, const Limits& limits, Source source) const
{
    return normalise(setting(row), {text, values_[row], limits, source}).value;
}

void Values::reset()
{
    for (int row = 0; row < count(); ++row) {
        const Setting& setting = this->setting(row);
        if (setting.base().onReset == OnReset::keepsValue || setting.is<Link>())
            continue;
        values_[row] = normalised(row, resetValue(setting), ownLimits(row), Source::edit);
    }
    for (const auto& [name, list] : layout_->sharedLists)
        keepShared(list, -1, {}, nullptr);
    for (const Distance& rule : table().all<Distance>()) {
        if (rule.gapFrom)
            keepDistances(rule.gapFrom.row, nullptr);
    }
    setAll(layout_->always, nullptr);
}

} // namespace vlk
