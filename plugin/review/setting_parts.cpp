#include "review/setting_parts.h"

#include "base/number_text.h"
#include "base/shown_text.h"
#include "base/translated.h"
#include "review/value_text.h"
#include "settings/data_set_boxes.h"

#include <algorithm>
#include <string_view>

namespace vlk::review {

bool canBeShown(const Setting& setting)
{
    bool has = setting.shown() && setting.shown()->column > 0;
    tables::eachWidget(setting, [&](auto...) { has = true; });
    return has;
}

int partCount(const Setting& setting)
{
    if (const auto* mask = setting.as<Mask>())
        return static_cast<int>(mask->fields.size());
    const auto* digits = setting.as<Digits>();
    return digits ? static_cast<int>(digits->positions.size()) : 0;
}

bool isPartShown(const Setting& setting, int part)
{
    if (const auto* mask = setting.as<Mask>()) {
        const MaskField& field = mask->fields[part];
        return std::ranges::any_of(kDataSetBoxes, [&](const DataSetBox& box) {
            return box.shown && box.field.number == field.number &&
                   std::string_view(box.field.widget) == field.widget;
        });
    }
    const auto* digits = setting.as<Digits>();
    return !digits || digits->positions[part].widget;
}

QString partCaption(const Setting& setting, int part)
{
    if (const auto* mask = setting.as<Mask>())
        return fieldText(mask->fields[part]);
    return inOneLine(translated(setting.as<Digits>()->positions[part].caption));
}

QString partOf(const Setting& setting, int part, const QString& value)
{
    if (const auto* mask = setting.as<Mask>())
        return maskPart(mask->fields[part], value);
    return value.mid(part, 1);
}

QString withPart(const Setting& setting, int part, const QString& value, const QString& from)
{
    const auto* mask = setting.as<Mask>();
    const QString held = partOf(setting, part, from);
    QString changed = value;
    for (int i = 0; i < held.size(); ++i) {
        const int position = mask ? mask->fields[part].positions[i] : part;
        changed = changed.leftJustified(position + 1, QLatin1Char('0'));
        changed[position] = held[i];
    }
    return changed;
}

bool isPartOn(const Setting& setting, int part, const QString& held)
{
    const auto* mask = setting.as<Mask>();
    return mask ? isMaskOn(mask->fields[part], held) : digitAt(held, 0) != 0;
}

std::vector<int> differingParts(const Setting& setting, const QString& value, const QString& other)
{
    const int count = partCount(setting);
    if (count == 0)
        return {-1};
    std::vector<int> parts;
    for (int part = 0; part < count; ++part) {
        if (partOf(setting, part, value) != partOf(setting, part, other))
            parts.push_back(part);
    }
    return parts;
}

QString partText(const Setting& setting, int part, const QString& held)
{
    if (const auto* mask = setting.as<Mask>())
        return fieldValueText(mask->fields[part], held);
    const auto& items = setting.as<Digits>()->items;
    const int digit = digitAt(held, 0);
    const bool isListed = static_cast<std::size_t>(digit) < items.size() && *items[digit].label;
    return isListed ? codeText(items[digit]) : yesNo(digit != 0);
}

} // namespace vlk::review
