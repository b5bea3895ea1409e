#include "telemetry/files/record_columns.h"

#include "telemetry/files/raw_values.h"
#include "telemetry/text/item_text.h"

#include <limits>

namespace vlk {

// Columns that were decoded before the store grew get the numbers that they lack.
const NumberColumn& RecordColumns::numbers(ItemIndex item)
{
    return filled(numbers_[item], kItems[item].element, ItemNumbers(item, userTypes_));
}

const NumberColumn& RecordColumns::numbers(ElementIndex element)
{
    return filled(wholes_[element], element,
                  [type = kElements[element].type](std::uint64_t raw) { return numberOf(raw, type); });
}

bool RecordColumns::areAny(ElementIndex element) const
{
    return std::ranges::any_of(store_.layouts(),
                               [element](const RecordLayout& layout) { return layout.has(element); });
}

template <class Number>
void RecordColumns::leaveOutDamaged(std::vector<Number>& column, int first, Number number) const
{
    for (auto record = std::ranges::lower_bound(damaged_, first); record != damaged_.end(); ++record)
        column[*record] = number;
}

template <class ToNumber>
const NumberColumn& RecordColumns::filled(NumberColumn& column, ElementIndex element, ToNumber toNumber)
{
    // Most of the elements that can be asked for are in no record: they share a column.
    if (!areAny(element)) {
        absent_.resize(store_.size(), std::numeric_limits<double>::quiet_NaN());
        return absent_;
    }
    const auto known = static_cast<int>(column.size());
    if (known == store_.size())
        return column;
    column.resize(store_.size());
    forEachRaw(
        store_, element, [element](const RecordLayout& layout) { return layout.has(element); },
        [&](int record, std::optional<std::uint64_t> raw) {
            column[record] = raw ? toNumber(*raw) : std::numeric_limits<double>::quiet_NaN();
        },
        known);
    leaveOutDamaged(column, known, std::numeric_limits<double>::quiet_NaN());
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
    leaveOutDamaged(column, known, quint32{0});
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

const std::vector<quint32>& RecordColumns::missingUpTo()
{
    constexpr quint32 most = 1'000'000;
    const std::vector<quint32>& numbers = recordNumbers();
    std::vector<quint32> sorted; // once there is something to look for
    const auto nextBelow = [&](quint32 number) {
        if (sorted.empty()) {
            sorted = numbers;
            if (!std::ranges::is_sorted(sorted))
                std::ranges::sort(sorted);
        }
        return std::ranges::lower_bound(sorted, number)[-1];
    };
    missing_.reserve(numbers.size());
    for (std::size_t record = missing_.size(); record < numbers.size(); ++record) {
        const quint32 number = numbers[record];
        quint32 missing = 0;
        if (number != 0) {
            const bool skips = lastNumber_ != 0 && number > lastNumber_ && number - lastNumber_ < most;
            if (skips && number - lastNumber_ > 1)
                missing = number - nextBelow(number) - 1;
            lastNumber_ = number;
        }
        missing_.push_back(missing + (missing_.empty() ? 0 : missing_.back()));
    }
    return missing_;
}

} // namespace vlk
