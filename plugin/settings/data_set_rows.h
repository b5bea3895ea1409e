#pragma once

// The rows of the table that data_set_settings.h tells of.

#include "catalogue/field_mask.h"
#include "settings/data_set_boxes.h"
#include "settings/data_set_settings.h"

namespace vlk::data_set {

inline constexpr const char* kSection = "PROTOCOL";

inline constexpr Code kVersions[] = {
    {.code = "10", .label = "ZETA 1.0"},
    {.code = "20", .label = "ZETA 2.0"},
    {.code = "30", .label = "ZETA 3.0"},
};

inline constexpr auto kMaskFields = [] {
    std::array<MaskField, kDataSetBoxes.size()> fields{};
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i] = kDataSetBoxes[i].field;
    return fields;
}();

// clang-format off
inline constexpr auto kRows = rowsOf(
    group("ZETA"),
    choice("format", kVersions, "10").unknownIs("30")              .in("comboBox_FlashFormat").caption("cfgt2_002"),   // Version of the transfer protocol
    mask("mask", kDefaultMaskText.data(), kFieldCount, kMaskFields).in("tabWidget_Zeta3")     .caption("cfgt2_006"));  // Fields of the record
// clang-format on

} // namespace vlk::data_set
