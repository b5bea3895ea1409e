#include "settings/temperature_settings.h"

#include "settings/temperature_rows.h"

namespace vlk {

namespace {

using namespace temperature;

constexpr auto kDistances = rulesOf(repeat<4>([](int) {
    return Distance{.first = "SENS%1/min",
                    .second = "SENS%1/max",
                    .gap = 1,
                    .gapFrom = "SENS%1/hyst",
                    .slider = "slider_Temp_%1"};
}));

} // namespace

constexpr SettingsTable kTemperatureSettings = tableOf<kRows, kDistances>(kSection, "cfgt7_001");

} // namespace vlk
