#include "settings/kinds/mask.h"

#include "base/number_text.h"

namespace vlk {

namespace {

QLatin1Char digitOf(bool on)
{
    return QLatin1Char(on ? '1' : '0');
}

// Whether a list has an item for what a mask holds there.
bool isItem(const MaskField& field, const QString& mask)
{
    QString part;
    for (std::size_t i = 0; i < field.count; ++i)
        part += digitOf(digitAt(mask, field.positions[i]) != 0);
    return std::ranges::any_of(field.items, [&](auto& item) { return part == QLatin1String(item.code); });
}

} // namespace

QString normalised(const Mask& row, const Reading& reading)
{
    QString held(row.length, digitOf(false));
    for (const MaskField& field : row.fields) {
        const bool isList = !field.items.empty();
        const QString& source = !isList || isItem(field, reading.text) ? reading.text : reading.before;
        const auto isSet = [&](int position) { return digitAt(source, position) != 0; };
        const auto read = std::span(field.positions).first(field.anyReads ? field.count : 1);
        const bool isOn = field.always || std::ranges::any_of(read, isSet);
        for (std::size_t i = 0; i < field.count; ++i) {
            const int position = field.positions[i];
            held[position] = digitOf(isList ? isSet(position) : isOn);
        }
    }
    return held;
}

} // namespace vlk
