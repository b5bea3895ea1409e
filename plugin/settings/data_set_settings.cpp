#include "settings/data_set_settings.h"

#include "settings/data_set_rows.h"

namespace vlk {

constexpr SettingsTable kDataSetSettings = tableOf<data_set::kRows>(data_set::kSection, "cfgt2_001");

} // namespace vlk
