#pragma once

// The rows of the table that accel_settings.h tells of.

#include "settings/accel_settings.h"

namespace vlk::accel {

inline constexpr const char* kSection = "ACCEL";

inline constexpr Heading kSensors{"cfgt9_006"}; // Virtual sensors based on the accelerometer

constexpr auto percent(const char* key, double loadDefault, double most)
{
    return real(key, loadDefault, 1).range(0, most).stepping(0.1).unit("abbr_008");
}

// clang-format off
inline constexpr auto kRows = rowsOf(
    group("SENSORS"), kSensors,
    percent("sh1", 50, 100) .in("doubleSpinBox_Level_SH1").beside("horizontalSlider_Level_SH1").caption("cfgt9_002"),  // Weak shock sensor SH1
    percent("sh2", 100, 100).in("doubleSpinBox_Level_SH2").beside("horizontalSlider_Level_SH2").caption("cfgt9_003"),  // Strong shock sensor SH2
    percent("sh3", 2, 10)   .in("doubleSpinBox_Level_SH3").beside("horizontalSlider_Level_SH3").caption("cfgt9_004"),  // Movement sensor SH3
    real("sh4", 25, 2).range(0, 25).stepping(0.5).unit("abbr_016")
                            .in("doubleSpinBox_Level_SH4").beside("horizontalSlider_Level_SH4").caption("cfgt9_005"));  // Tilt sensor SH4
// clang-format on

} // namespace vlk::accel
