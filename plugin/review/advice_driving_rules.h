#pragma once

// Rules of advice: the track, and what tells that the engine runs.

#include "review/advice_rule_parts.h"
#include "settings/shared_rows.h"

namespace vlk::review::advice {

inline constexpr int kTimeServers = 4;

// Signals that motion, averaging and fuel readings can follow, by their positions there.
inline constexpr Position kIgnition = at<0>;
inline constexpr Position kEngine = at<1>;
inline constexpr Position kTachometer = at<2>;

inline constexpr Condition kNoIgnition = every(kLines, isOff("SENSORS/IN%2/ign"));

// The mend is what a new configuration has: line 1 is the ignition, in its own use if it has one.
constexpr auto withoutIgnition(const char* id, const char* path, auto... conditions)
{
    constexpr const char* use = "SENSORS/IN1/normState";
    constexpr const char* ignition = "SENSORS/IN1/IN1ADIN/ign";
    const Rule told = rule(id, Warning, "adv_044").naming(path, "SENSORS/IN1/ign").telling(captionOf(path));
    return rulesOf(
        told.when(conditions..., kNoIgnition, isNot(use, kUnused)).mending(ignition, "1"),
        told.when(conditions..., kNoIgnition, is(use, kUnused)).mending(use, "NB+").mending(ignition, "1"));
}

// A point is asked for more often than a pause lets it come.
constexpr Rule pausedPoints(const char* id, const char* use, const char* path, const char* limitUse,
                            const char* limit)
{
    return rule(id, Warning, "adv_058")
        .when(isOn(use), isOn(path), isOn(limitUse), below(path, limit))
        .naming(limit, path)
        .telling(valueOf(path), valueOf(limit));
}

// A limit of coordinates that hardly any of them keeps.
constexpr Rule strictFilter(const char* id, const char* path, Condition condition)
{
    return rule(id, Hint, "adv_061")
        .when(isOn("TRACK/COORDFLT/use"), condition)
        .naming(path)
        .telling(captionOf(path), valueOf(path));
}

inline constexpr auto kTrackRules = rulesOf(
    rule("track_no_points", Warning, "adv_057")
        .when(isOff("TRACK/POINTS/angleMode"), isOff("TRACK/POINTS/useDist"), isOff("TRACK/POINTS/useTimer"))
        .naming("TRACK/POINTS/angleMode", "TRACK/POINTS/useDist", "TRACK/POINTS/useTimer"),
    pausedPoints("track_distance_paused", "TRACK/POINTS/useDist", "TRACK/POINTS/dist",
                 "TRACK/LIMPOINT/blockDist", "TRACK/LIMPOINT/dist"),
    pausedPoints("track_period_paused", "TRACK/POINTS/useTimer", "TRACK/POINTS/moveTimer",
                 "TRACK/LIMPOINT/blockTimer", "TRACK/LIMPOINT/timer"),
    rule("overspeed_rejected", Warning, "adv_059")
        .when(isOn("TRACK/POINTS/useMaxSpeed"), isOn("TRACK/COORDFLT/use"),
              notBelow("TRACK/POINTS/maxSpeed", "TRACK/COORDFLT/maxSpeed"))
        .naming("TRACK/COORDFLT/maxSpeed", "TRACK/POINTS/maxSpeed")
        .telling(valueOf("TRACK/COORDFLT/maxSpeed"), valueOf("TRACK/POINTS/maxSpeed")),
    withoutIgnition("motion_ignition", "TRACK/POINTS/moveTimerSens", isOn("TRACK/POINTS/useTimer"),
                    digitOn("TRACK/POINTS/moveTimerSens", kIgnition)),
    rule("motion_engine", Warning, "adv_045")
        .when(isOn("TRACK/POINTS/useTimer"), digitOn("TRACK/POINTS/moveTimerSens", kEngine), kNoSupplyLine)
        .naming("SYSTEM/PWRSENS/line", "TRACK/POINTS/moveTimerSens"),
    rule("motion_tachometer", Warning, "adv_046")
        .when(isOn("TRACK/POINTS/useTimer"), digitOn("TRACK/POINTS/moveTimerSens", kTachometer),
              every(kLines, isNot("SENSORS/IN%2/normState", "TAHO")))
        .naming("TRACK/POINTS/moveTimerSens"),
    withoutIgnition("stop_ignition", "TRACK/COORDAVER/sensors", isOn("TRACK/COORDFLT/use"),
                    isOn("TRACK/COORDAVER/mode"), digitOn("TRACK/COORDAVER/sensors", kIgnition),
                    like("TRACK/COORDAVER/sensors", "^.0")),
    rule("motion_sensor", Warning, "adv_056")
        .when(isOn("TRACK/POINTS/useMoveSens"), is("ACCEL/SENSORS/sh3", "0.0"))
        .naming("ACCEL/SENSORS/sh3", "TRACK/POINTS/useMoveSens"),
    rule("elevation_mask", Hint, "adv_060")
        .when(notBelow("TRACK/GNSS/angle", 31))
        .naming("TRACK/GNSS/angle")
        .telling(valueOf("TRACK/GNSS/angle")),
    strictFilter("filter_satellites", "TRACK/COORDFLT/minSats", notBelow("TRACK/COORDFLT/minSats", 13)),
    strictFilter("filter_hdop", "TRACK/COORDFLT/maxHDOP", below("TRACK/COORDFLT/maxHDOP", 0.8)));

inline constexpr Condition kFuelBySupply = digitOn("SYSTEM/FUEL/sensors", at<2>);

inline constexpr auto kSystemRules = rulesOf(
    withoutIgnition("fuel_ignition", "SYSTEM/FUEL/sensors", digitOn("SYSTEM/FUEL/sensors", kIgnition)),
    never("fuel_never_off", Warning, "adv_037", "SYSTEM/FUEL/blockVolt")
        .when(kFuelBySupply, is("SYSTEM/FUEL/blockVolt", "0")),
    never("fuel_never_on", Error, "adv_038", "SYSTEM/FUEL/unblockVolt")
        .when(kFuelBySupply, notBelow("SYSTEM/FUEL/unblockVolt", 31000)),
    never("supply_never_restores", Warning, "adv_039", "SYSTEM/PWRSENS/restoreLvl")
        .when(isOn("SYSTEM/PWRSENS/line"), notBelow("SYSTEM/PWRSENS/restoreLvl", 32000)),
    never("engine_never_runs", Warning, "adv_040", "SYSTEM/ENGSENS/voltageLvl")
        .when(isOn("SYSTEM/PWRSENS/line"), isOn("SYSTEM/ENGSENS/useCustom"),
              notBelow("SYSTEM/ENGSENS/voltageLvl", 32000)),
    rule("engine_below_alarm", Warning, "adv_047")
        .when(isOn("SYSTEM/PWRSENS/line"), isOn("SYSTEM/ENGSENS/useCustom"),
              notBelow("SYSTEM/PWRSENS/alarmLvl", "SYSTEM/ENGSENS/voltageLvl"))
        .naming("SYSTEM/ENGSENS/voltageLvl", "SYSTEM/PWRSENS/alarmLvl")
        .telling(valueOf("SYSTEM/ENGSENS/voltageLvl"), valueOf("SYSTEM/PWRSENS/alarmLvl")),
    rule("ntp_no_server", Warning, "adv_062")
        .when(isOn("SYSTEM/NTP/use"), every(kTimeServers, is("SYSTEM/NTP/ntpSrv%2", "")))
        .naming("SYSTEM/NTP/ntpSrv1", "SYSTEM/NTP/use"),
    rule("ntp_server_form", Warning, "adv_064")
        .each(kTimeServers)
        .when(isOn("SYSTEM/NTP/use"), unlike("SYSTEM/NTP/ntpSrv%1", shared::kHostPattern))
        .naming("SYSTEM/NTP/ntpSrv%1")
        .telling(captionOf("SYSTEM/NTP/ntpSrv%1"), valueOf("SYSTEM/NTP/ntpSrv%1")),
    rule("ntp_periods", Hint, "adv_063")
        .when(isOn("SYSTEM/NTP/use"), below("SYSTEM/NTP/usualPeriod", "SYSTEM/NTP/faultPeriod"))
        .naming("SYSTEM/NTP/faultPeriod", "SYSTEM/NTP/usualPeriod")
        .telling(valueOf("SYSTEM/NTP/faultPeriod"), valueOf("SYSTEM/NTP/usualPeriod")));

} // namespace vlk::review::advice
