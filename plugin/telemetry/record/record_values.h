#pragma once

// The values of one record: its mask and a block in which every field has its fixed place, whatever the mask
// selects. What the record does not hold reads as 0; has() tells the two apart.

#include "telemetry/record/element_values.h"
#include "telemetry/record/unpack_fields.h"

namespace vlk {

template <int fieldCount>
class RecordValues : public ElementValues<RecordValues<fieldCount>>
{
public:
    using ValueBlock = std::array<std::uint8_t, blockBytes(fieldCount)>;

    bool has(ElementIndex index) const { return hasField(kElements[index].field); }
    bool hasField(int field) const { return field < fieldCount && mask_.test(field); }
    const FieldMask& mask() const { return mask_; }
    const ValueBlock& valueBlock() const { return block_; }

    const std::uint8_t* find(ElementIndex index) const
    {
        return kElements[index].field < fieldCount ? block_.data() + kElements[index].offset : nullptr;
    }

protected:
    RecordValues() = default;
    RecordValues(const FieldMask& mask, const ValueBlock& block) : mask_(mask), block_(block) {}

    void unpack(const FieldMask& mask, std::span<const std::uint8_t> payload)
    {
        mask_ = mask;
        unpackFields(mask_, fieldCount, payload, block_.data());
    }

    // The values stay.
    void setMask(const FieldMask& mask) { mask_ = mask; }

private:
    FieldMask mask_;
    ValueBlock block_{};
};

} // namespace vlk
