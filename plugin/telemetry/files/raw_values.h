#pragma once

// The bytes of one element over many records, without decoding the records.

#include "telemetry/record/record_store.h"

#include <optional>

namespace vlk {

// Calls visit(record, raw) for every record from `first` on, with a std::optional<std::uint64_t> that is
// empty where `isHeld` of its layout gives false. A value that is cut by the end of its record reads as 0, as
// it does everywhere.
template <class IsHeld, class Visit>
void forEachRaw(const RecordStore& store, ElementIndex index, IsHeld isHeld, Visit visit, int first = 0)
{
    constexpr int unknown = -2;
    constexpr int absent = -1;
    const int width = kElements[index].width;
    std::vector<int> offsets(store.layouts().size(), unknown);
    for (int record = first; record < store.size(); ++record) {
        int& offset = offsets[store.layoutNumber(record)];
        if (offset == unknown) {
            const RecordLayout& layout = store.layout(record);
            offset = isHeld(layout) ? layout.offsetOf(index) : absent;
        }
        if (offset == absent) {
            visit(record, std::optional<std::uint64_t>());
            continue;
        }
        const auto bytes = store.bytes(record);
        const bool isWhole = bytes.size() >= static_cast<std::size_t>(offset + width);
        visit(record, std::optional(isWhole ? rawAt(bytes.data() + offset, width) : 0));
    }
}

} // namespace vlk
