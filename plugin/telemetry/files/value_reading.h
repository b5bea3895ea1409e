#pragma once

// Reads the text of an element's value to its bytes, little-endian, of the element's width. What is no number
// of its type gives 0.

#include "catalogue/field_catalogue.h"

#include <string_view>

namespace vlk {

// Whether it is one.
bool readValue(ElementIndex index, std::string_view text, std::uint8_t* to);

} // namespace vlk
