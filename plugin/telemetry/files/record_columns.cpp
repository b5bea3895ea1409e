#include "telemetry/files/record_columns.h"

#include "telemetry/text/item_text.h"

#include <limits>

namespace vlk {

namespace {

constexpr int kUnknown = -2;
constexpr int kAbsent = -1;

std::uint64_t rawAt(const std::uint8_t* bytes, int width)
{
    std::uint64_t raw = 0;
    for (int i = 0; i < width; ++i)
        raw |= std::uint64_t{bytes[i]} << 8 * i;
    return raw;
}

// Calls visit(record, raw) for every record; raw is empty where `isHeld` of its layout gives false. A value
// that is cut by the end of its record reads as 0, as it does everywhere.
template <class IsHeld, class Visit>
void walk(const RecordStore& store, ElementIndex index, IsHeld isHeld, Visit visit)
{
    const int width = kElements[index].width;
    std::vector<int> offsets(store.layouts().size(), kUnknown);
    for (int record = 0; record < store.size(); ++record) {
        int& offset = offsets[store.layoutNumber(record)];
        if (offset == kUnknown) {
            const RecordLayout& layout = store.layout(record);
            offset = isHeld(layout) ? layout.offsetOf(index) : kAbsent;
        }
        if (offset == kAbsent) {
            visit(record, std::optional<std::uint64_t>());
            continue;
        }
        const auto bytes = store.bytes(record);
        const bool isWhole = bytes.size() >= static_cast<std::size_t>(offset + width);
        visit(record, std::optional(isWhole ? rawAt(bytes.data() + offset, width) : 0));
    }
}

} // namespace

const NumberColumn& RecordColumns::numbers(ItemIndex item)
{
    const auto [place, isNew] = numbers_.try_emplace(item);
    NumberColumn& column = place->second;
    if (!isNew)
        return column;
    fill(column, kItems[item].element, [&](std::uint64_t raw) { return itemNumber(raw, item, userTypes_); });
    return column;
}

const NumberColumn& RecordColumns::numbers(ElementIndex element)
{
    const auto [place, isNew] = wholes_.try_emplace(element);
    if (isNew)
        fill(place->second, element,
             [type = kElements[element].type](std::uint64_t raw) { return numberOf(raw, type); });
    return place->second;
}

template <class ToNumber>
void RecordColumns::fill(NumberColumn& column, ElementIndex element, ToNumber toNumber) const
{
    column.resize(store_.size());
    walk(
        store_, element, [element](const RecordLayout& layout) { return layout.has(element); },
        [&](int record, std::optional<std::uint64_t> raw) {
            column[record] = raw ? toNumber(*raw) : std::numeric_limits<double>::quiet_NaN();
        });
}

const std::vector<quint32>& RecordColumns::headColumn(ElementIndex element)
{
    const auto [place, isNew] = heads_.try_emplace(element);
    std::vector<quint32>& column = place->second;
    if (!isNew)
        return column;
    column.resize(store_.size());
    walk(
        store_, element, [](const RecordLayout&) { return true; },
        [&](int record, std::optional<std::uint64_t> raw) {
            column[record] = static_cast<quint32>(raw.value_or(0));
        });
    return column;
}

const std::vector<quint32>& RecordColumns::times()
{
    return headColumn(element("Time"));
}

const std::vector<quint32>& RecordColumns::codes()
{
    return headColumn(element("Code"));
}

const std::vector<quint32>& RecordColumns::recordNumbers()
{
    return headColumn(element("NumPage"));
}

} // namespace vlk
