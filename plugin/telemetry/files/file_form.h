#pragma once

// How the value of an element stands in the XML form, for its writer and its reader.

#include "catalogue/field_catalogue.h"

namespace vlk {

struct FileForm
{
    ValueType type; // integers in decimal, an f32 as the shortest text of its double
    int divisor;    // above 1: the value divided by it, as the text of a double
};

// These stand in a page whatever its mask says.
inline constexpr ElementIndex kAlwaysWritten[] = {element("NumPage"), element("Code"), element("Time")};

inline constexpr std::array<FileForm, kElementCount> kFileForms = [] {
    std::array<FileForm, kElementCount> forms{};
    for (int i = 0; i < kElementCount; ++i)
        forms[i] = {kElements[i].type, 1};
    forms[element("CAN_TimeTO")].type = ValueType::I16;
    forms[element("NaviHDop")].divisor = 10;
    forms[element("NaviPDop")].divisor = 10;
    forms[element("NaviAltitude")].divisor = 1000;
    return forms;
}();

} // namespace vlk
