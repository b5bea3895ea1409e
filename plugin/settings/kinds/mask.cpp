#include "settings/kinds/mask.h"

#include "base/number_text.h"

namespace vlk {

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
    const auto found = std::find_if(field.items.begin(), field.items.end(),
                                    [&](const Code& item) { return part == QLatin1String(item.code); });
    return found == field.items.end() ? -1 : static_cast<int>(found - field.items.begin());
}

QString normalised(const Mask& row, const Reading& reading)
{
    const QString& text = reading.text;
    const QString none(row.length, QLatin1Char('0'));
    QString read = none;
    std::transform(text.begin(), text.begin() + std::min(text.size(), read.size()), read.begin(),
                   [](QChar sign) { return QLatin1Char(sign.digitValue() > 0 ? '1' : '0'); });
    QString held = row.fields.empty() ? read : none;
    // There are many check boxes: their parts are not written out.
    const auto isSet = [&read](int position) { return read[position] != QLatin1Char('0'); };
    for (const MaskField& field : row.fields) {
        const bool isList = !field.items.empty();
        const bool isKept = isList && maskItem(field, maskPart(field, read)) < 0;
        const auto* first = field.positions.begin();
        const bool isOn =
            field.always || std::any_of(first, first + (field.anyReads ? field.count : 1), isSet);
        for (std::size_t i = 0; i < field.count; ++i) {
            const int position = field.positions[i];
            const bool isListed = digitAt(isKept ? reading.before : read, position) != 0;
            held[position] = QLatin1Char((isList ? isListed : isOn) ? '1' : '0');
        }
    }
    return held;
}

} // namespace vlk
