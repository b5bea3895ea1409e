#pragma once

// The bytes of one element over many records, without decoding the records.

#include "telemetry/record/record_store.h"

#include <optional>

namespace vlk {

// The raw values of the records that are asked for, in any order. The store stays as it is meanwhile.
class RawValues
{
public:
    template <class IsHeld>
    RawValues(const RecordStore& store, ElementIndex index, IsHeld isHeld)
        : store_(store), width_(kElements[index].width)
    {
        offsets_.reserve(store.layouts().size());
        for (const RecordLayout& layout : store.layouts())
            offsets_.push_back(isHeld(layout) ? layout.offsetOf(index) : kAbsent);
    }
    // Where the records tell it.
    RawValues(const RecordStore& store, ElementIndex index)
        : RawValues(store, index, [index](const RecordLayout& layout) { return layout.has(index); })
    {
    }

    // Empty where `isHeld` of the record's layout gave false. A value that is cut by the end of its record
    // reads as 0, as it does everywhere.
    std::optional<std::uint64_t> at(int record) const
    {
        const int offset = offsets_[store_.layoutNumber(record)];
        if (offset == kAbsent)
            return {};
        const auto bytes = store_.bytes(record);
        const bool isWhole = std::ssize(bytes) >= offset + width_;
        return isWhole ? rawAt(bytes.data() + offset, width_) : 0;
    }

private:
    static constexpr int kAbsent = -1;

    const RecordStore& store_;
    int width_;
    std::vector<int> offsets_; // by layout
};

// Calls visit(record, raw) for every record from `first` on, with what RawValues tells of it.
template <class IsHeld, class Visit>
void forEachRaw(const RecordStore& store, ElementIndex index, IsHeld isHeld, Visit visit, int first = 0)
{
    const RawValues values(store, index, isHeld);
    for (int record = first; record < store.size(); ++record)
        visit(record, values.at(record));
}

} // namespace vlk
