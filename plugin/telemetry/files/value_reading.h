#pragma once

// Reads the text of an element's value to its bytes, little-endian, of the element's width.

#include "catalogue/field_catalogue.h"

#include <string_view>

namespace vlk {

void readValue(ElementIndex index, std::string_view text, std::uint8_t* to);

} // namespace vlk
