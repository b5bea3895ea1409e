#pragma once

// The rows of the table that temperature_settings.h tells of.

#include "settings/temperature_settings.h"

namespace vlk::temperature {

inline constexpr const char* kSection = "TEMPSENS";

inline constexpr Heading kSensor{"cfgt7_007", "%1 T%2"}; // Temperature sensor

constexpr auto degrees(const char* key, double loadDefault)
{
    return real(key, loadDefault, 1).stepping(0.5).unit("abbr_017").readSingle();
}

// The bounds are read in front of the hysteresis, which then pushes them apart where they are too near for
// it.
inline constexpr auto kRows = rowsOf(repeat<4>([](int) {
    // clang-format off
    return rowsOf(
        group("SENS%1"), kSensor,
        degrees("min", -50).range(-50, 115)              .in("doubleSpinBox_Left_Temp_%1") .caption("cfgt7_002"),   // Min
        degrees("max", 120).range(-45, 120)              .in("doubleSpinBox_Right_Temp_%1").caption("cfgt7_003"),   // Max
        integer("hyst", 5) .range(0, 10).unit("abbr_017").in("spinBox_Hyst_%1")            .caption("cfgt7_004"),   // Hysteresis
        flag("filterMode", 1)                            .in("checkBox_Filtr_%1")          .caption("cfgt7_005"));  // Switch filtering on
    // clang-format on
}));

} // namespace vlk::temperature
