#include "telemetry/files/record_columns.h"

#include "telemetry/files/raw_values.h"
#include "telemetry/text/item_text.h"

#include <limits>

namespace vlk {

// Columns that were decoded before the store grew get the numbers that they lack.
const NumberColumn& RecordColumns::numbers(ItemIndex item)
{
    NumberColumn& column = numbers_[item];
    const auto known = static_cast<int>(column.size());
    if (known == store_.size())
        return column;
    column.resize(store_.size());
    const ElementIndex element = kItems[item].element;
    forEachRaw(
        store_, element, [element](const RecordLayout& layout) { return layout.has(element); },
        [&](int record, std::optional<std::uint64_t> raw) {
            column[record] =
                raw ? itemNumber(*raw, item, userTypes_) : std::numeric_limits<double>::quiet_NaN();
        },
        known);
    return column;
}

const std::vector<quint32>& RecordColumns::headColumn(ElementIndex element)
{
    std::vector<quint32>& column = heads_[element];
    const auto known = static_cast<int>(column.size());
    if (known == store_.size())
        return column;
    column.resize(store_.size());
    forEachRaw(
        store_, element, [](const RecordLayout&) { return true; },
        [&](int record, std::optional<std::uint64_t> raw) {
            column[record] = static_cast<quint32>(raw.value_or(0));
        },
        known);
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
