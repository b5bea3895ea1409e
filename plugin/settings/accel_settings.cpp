#include "settings/accel_settings.h"

#include "settings/accel_rows.h"

namespace vlk {

constexpr SettingsTable kAccelSettings = tableOf<accel::kRows>(accel::kSection, "cfgt9_001");

} // namespace vlk
