#include "settings/data_set_settings.h"

#include "catalogue/field_mask.h"
#include "settings/data_set_boxes.h"

namespace vlk {

namespace {

constexpr Code kVersions[] = {
    {.code = "10", .label = "ZETA 1.0"},
    {.code = "20", .label = "ZETA 2.0"},
    {.code = "30", .label = "ZETA 3.0"},
};

constexpr auto kMaskFields = [] {
    std::array<MaskField, kDataSetBoxes.size()> fields{};
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i] = kDataSetBoxes[i].field;
    return fields;
}();

constexpr auto kRows =
    rowsOf(group("ZETA"),
           choice("format", kVersions, "10").unknownIs("30").in("comboBox_FlashFormat").caption("cfgt2_002"),
           mask("mask", kDefaultMaskText.data(), kFieldCount, kMaskFields)
               .in("tabWidget_Zeta3")
               .caption("cfgt2_006"));

} // namespace

constexpr SettingsTable kDataSetSettings = tableOf<kRows>("PROTOCOL", "cfgt2_001");

} // namespace vlk
