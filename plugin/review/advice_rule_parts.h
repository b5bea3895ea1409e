#pragma once

// Rules of advice: what those of several pages share.

#include "catalogue/field_catalogue.h"
#include "review/advice_rule.h"
#include "settings/settings_table.h"

namespace vlk::review::advice {

using enum Severity;

inline constexpr int kLines = 3;
inline constexpr int kTemperatures = 4;

constexpr int temperatureField(int sensor)
{
    return field("Temp1") + sensor - 1;
}
constexpr int preciseField(int sensor)
{
    return field("HPrecisionTemp1") + sensor - 1;
}

inline constexpr const char* kUnused = "NU|N/A"; // of a line
inline constexpr Condition kNoSupplyLine = isOff("SYSTEM/PWRSENS/line");

// A threshold at an end of its range, so that what waits for it never comes.
constexpr Rule never(const char* id, Severity severity, const char* text, const char* path)
{
    return rule(id, severity, text).naming(path).telling(captionOf(path), valueOf(path));
}

} // namespace vlk::review::advice
