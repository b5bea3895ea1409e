#pragma once

// The value of every field at a moment, as a block in which each field has its fixed place (see the
// catalogue of fields).

#include "catalogue/field_catalogue.h"
#include "tracker/vehicle.h"

namespace tracker {

using ValueBlock = std::array<std::uint8_t, vlk::kBlockBytes>;

ValueBlock valueBlock(const Vehicle& vehicle);

} // namespace tracker
