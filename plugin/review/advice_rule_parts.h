#pragma once

// Rules of advice: what those of several pages share.

#include "catalogue/field_catalogue.h"
#include "review/advice_rule.h"
#include "settings/settings_table.h"

namespace vlk::review::advice {

using enum Severity;

inline constexpr int kLines = 3;
inline constexpr int kTemperatures = 4;

constexpr int levelField(int sensor)
{
    constexpr int few = 6; // in a group of their own; the others have level and temperature in one field
    return sensor <= few ? field("LevelRS485_1") + sensor - 1 : field("LevelRS485_7") + sensor - few - 1;
}
constexpr int temperatureField(int sensor)
{
    return field("Temp1") + sensor - 1;
}
constexpr int preciseField(int sensor)
{
    return field("HPrecisionTemp1") + sensor - 1;
}

inline constexpr const char* kUnused = "NU|N/A"; // of a line
inline constexpr Condition kNoIgnition = every(kLines, isOff("SENSORS/IN%2/ign"));
inline constexpr Condition kNoSupplyLine = isOff("SYSTEM/PWRSENS/line");
inline constexpr const char* kDiscrete = "NS-|NB-|NS+|NB+";

// The mend is what a new configuration has: line 1 is the ignition, in its own use if it has one.
constexpr auto withoutIgnition(const char* id, const char* path, auto... conditions)
{
    constexpr const char* use = "SENSORS/IN1/normState";
    constexpr const char* ignition = "SENSORS/IN1/IN1ADIN/ign";
    const Rule told = rule(id, warning, "adv_044").naming(path, "SENSORS/IN1/ign").telling(captionOf(path));
    return rulesOf(
        told.when(conditions..., kNoIgnition, isNot(use, kUnused)).mending(ignition, "1"),
        told.when(conditions..., kNoIgnition, is(use, kUnused)).mending(use, "NB+").mending(ignition, "1"));
}

// A threshold at an end of its range, so that what waits for it never comes.
constexpr Rule never(const char* id, Severity severity, const char* text, const char* path)
{
    return rule(id, severity, text).naming(path).telling(captionOf(path), valueOf(path));
}

} // namespace vlk::review::advice
