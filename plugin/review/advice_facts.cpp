#include "review/advice_facts.h"

#include "review/advice_rules.h"
#include "review/value_text.h"
#include "settings/data_set_boxes.h"

#include <algorithm>

namespace vlk::review::advice {

namespace {

// The formats of a record, each with the fields that it knows.
struct Format
{
    const char* code;
    int fieldCount;
};
constexpr Format kFormats[] = {{"10", kZeta10Count}, {"20", kEarlierFieldCount}, {kWholeFormat, kFieldCount}};

// The last one where `is` is true of none.
template <class Is>
const Format& firstFormat(Is is)
{
    return *std::ranges::find_if(std::begin(kFormats), std::end(kFormats) - 1, is);
}

Place maskPlace()
{
    static const Place place = placeOf(QLatin1String(kMaskPath));
    return place;
}

Place formatPlace()
{
    static const Place place = placeOf(QLatin1String(kFormatPath));
    return place;
}

// Null for a field that no box ticks.
const MaskField* boxWith(int field)
{
    const auto holds = [&](const DataSetBox& box) {
        const auto end = box.field.positions.begin() + box.field.count;
        return std::ranges::find(box.field.positions.begin(), end, field) != end;
    };
    const auto found = std::ranges::find_if(kDataSetBoxes, holds);
    return found == kDataSetBoxes.end() ? nullptr : &found->field;
}

} // namespace

Facts::Facts(const Configuration& configuration, const QHash<QString, QString>& unread)
    : configuration_(configuration), unread_(unread),
      mask_(FieldMask::fromText(value(maskPlace()).toStdString())),
      knownFields_(firstFormat([&](const Format& format) {
                       return value(formatPlace()) == QLatin1String(format.code);
                   }).fieldCount)
{
}

const QString& Facts::value(Place place) const
{
    static const QString none;
    return place.table < 0 ? none : table(place).value(place.row);
}

int Facts::recordBytes() const
{
    return kRecordHead + mask_.payloadSize();
}

QString Facts::boxText(int field) const
{
    const MaskField* box = boxWith(field);
    QString text = box ? fieldText(*box) : QString();
    if (isKnown(field))
        return text;
    const Format& wanted = firstFormat([&](const Format& format) { return field < format.fieldCount; });
    const Place place = formatPlace();
    const QString format = valueText(table(place), place.row, QString::fromLatin1(wanted.code));
    return QStringLiteral("%1 (%2)").arg(text, format);
}

QString Facts::maskWith(int field) const
{
    QString mask = value(maskPlace()).leftJustified(kFieldCount, QLatin1Char('0'));
    const MaskField* box = boxWith(field);
    for (std::size_t i = 0; box && i < box->count; ++i)
        mask[box->positions[i]] = QLatin1Char('1');
    return mask;
}

} // namespace vlk::review::advice
