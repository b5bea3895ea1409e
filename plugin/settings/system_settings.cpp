#include "settings/system_settings.h"

#include "settings/system_rows.h"

namespace vlk {

namespace {

using namespace system;

// Without the line that measures the supply voltage nothing can be told from it.
constexpr auto kSets = rulesOf(always(unless("PWRSENS/line"), "FUEL/sensors", "*00"));

// clang-format off
constexpr auto kDistances = rulesOf(
    Distance{.first = "FUEL/blockVolt",   .second = "FUEL/unblockVolt",   .gap = 0.5, .slider = "slider_Fuel"},
    Distance{.first = "PWRSENS/alarmLvl", .second = "PWRSENS/restoreLvl", .gap = 0.5, .slider = "slider_Power"});

constexpr auto kEnables = rulesOf(
    enable("checkBox_Fuel_Engine checkBox_Fuel_Level",                 when("PWRSENS/line")),
    enable(parts("groupBox_Power_SensLevel Settings_groupBox_Engine"), when("PWRSENS/line")),
    enable(parts("frame_Slider_Fuel"),                                 when("FUEL/sensors", "001|011|101|111")),
    enable(parts("groupBox_Tuning"),                                   when("ENGSENS/useCustom")),
    enable(parts("frame_NTP_Param_Set frame_NTP_Param_Srv"),           when("NTP/use")));
// clang-format on

} // namespace

constexpr SettingsTable kSystemSettings = tableOf<kRows, kSets, kDistances, kEnables>(kSection, "cfgt4_001");

} // namespace vlk
