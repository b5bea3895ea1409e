#include "review/mask_field.h"

#include "base/number_text.h"
#include "base/translated.h"

#include <algorithm>

namespace vlk {

QString fieldText(const MaskField& field)
{
    const QString text = QString::fromLatin1(field.format).arg(translated(field.caption));
    return field.number > 0 ? text.arg(field.number) : text;
}

QString maskPart(const MaskField& field, const QString& mask)
{
    QString part;
    for (std::size_t i = 0; i < field.count; ++i)
        part += QLatin1Char(digitAt(mask, field.positions[i]) != 0 ? '1' : '0');
    return part;
}

bool isMaskOn(const MaskField& field, const QString& part)
{
    const QLatin1Char on('1');
    return field.always || (field.anyReads ? part.contains(on) : part.startsWith(on));
}

int maskItem(const MaskField& field, const QString& part)
{
    const auto found =
        std::ranges::find_if(field.items, [&](const Code& item) { return part == QLatin1String(item.code); });
    return found == field.items.end() ? -1 : static_cast<int>(found - field.items.begin());
}

} // namespace vlk
