#pragma once

// The one walk from a packed payload to a block in which every field has its fixed place.

#include "catalogue/field_mask.h"

#include <span>

namespace vlk {

// Copies the fields that the mask selects, of the first `fieldCount`, from `payload` to their places in
// `block`, and zeroes the rest of its blockBytes(fieldCount) bytes. A payload shorter than its mask demands
// gives the values that are whole in it, in a group too; the others are zero.
void unpackFields(const FieldMask& mask, int fieldCount, std::span<const std::uint8_t> payload,
                  std::uint8_t* block);

} // namespace vlk
