#pragma once

// Where the elements of columns stand in the bytes of records, told once for all records of one layout.

#include "telemetry/files/raw_values.h"

#include <vector>

namespace vlk {

class ColumnOffsets
{
public:
    static constexpr int kAbsent = -1;  // the record does not tell the element
    static constexpr int kNoBytes = -2; // it does, without bytes for it: 0

    // `headsAlways`: number, code and time are told by every record, as in the XML form.
    explicit ColumnOffsets(std::vector<ElementIndex> elements, bool headsAlways = false)
        : elements_(std::move(elements)), headsAlways_(headsAlways)
    {
    }

    // One for each element; valid until the next call.
    std::span<const int> of(const RecordLayout& layout)
    {
        for (std::size_t i = 0; i < known_.size(); ++i) {
            // Mostly the one before.
            const std::size_t place = (last_ + i) % known_.size();
            if (known_[place].layout == layout) {
                last_ = place;
                return known_[place].offsets;
            }
        }
        if (known_.size() == kMost)
            known_.clear();
        last_ = known_.size();
        known_.push_back({layout, {}});
        for (const ElementIndex element : elements_) {
            const bool isTold =
                layout.has(element) || (headsAlways_ && kElements[element].field < kHeadFields);
            const int offset = isTold ? layout.offsetOf(element) : kAbsent;
            known_.back().offsets.push_back(isTold && offset < 0 ? kNoBytes : offset);
        }
        return known_.back().offsets;
    }

private:
    static constexpr std::size_t kMost = 64;
    static constexpr int kHeadFields = 3;

    struct Known
    {
        RecordLayout layout;
        std::vector<int> offsets;
    };

    std::vector<ElementIndex> elements_;
    bool headsAlways_;
    std::vector<Known> known_;
    std::size_t last_ = 0;
};

// The value there, 0 where it is cut by the end of the record or has no bytes.
inline std::uint64_t rawIn(std::span<const std::uint8_t> record, int offset, int width)
{
    const bool isThere = offset >= 0 && static_cast<std::ptrdiff_t>(offset) + width <= std::ssize(record);
    return isThere ? rawAt(record.data() + offset, width) : 0;
}

} // namespace vlk
