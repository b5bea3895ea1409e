#pragma once

// The one walk from a packed payload to a block in which every field has its fixed place.

#include "dataset/catalogue/field_mask.h"

#include <span>

namespace vlk {

// Copies the fields that the mask selects, of the first `fieldCount`, from `payload` to their places in
// `block`. Bytes of fields that are not selected stay as they are. A payload shorter than its mask demands
// gives the values that are whole in it, in a group too, and leaves the others. `block` has room for
// blockBytes(fieldCount).
void unpackFields(const FieldMask& mask, int fieldCount, std::span<const std::uint8_t> payload,
                  std::uint8_t* block);

} // namespace vlk
