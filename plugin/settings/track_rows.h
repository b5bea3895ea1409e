#pragma once

// The rows of the table that track_settings.h tells of.

#include "settings/shared_rows.h"
#include "settings/track_settings.h"

namespace vlk::track {

inline constexpr const char* kSection = "TRACK";

inline constexpr Position kMotionSignals[] = {
    {"checkBox_TmrFlag_In1", "cfgt3_017"},
    {"checkBox_TmrFlag_Engine", "cfgt3_018"},
    {"checkBox_TmrFlag_Taho", "cfgt3_019"},
};

inline constexpr Code kStopModes[] = {
    {.code = "0", .label = "cfgt3_037", .widget = "Coord_Stop_radioButton_NotAverage"},
    {.code = "1", .label = "cfgt3_038", .widget = "Coord_Stop_radioButton_Average"},
    {.code = "3", .label = "cfgt3_039", .widget = "Coord_Stop_radioButton_Fixed"},
};

// The two behind belong to sensors that this tracker lacks.
inline constexpr Position kStopSensors[] = {
    {"checkBox_Average_IN1", "cfgt3_017"}, {"checkBox_Average_Accel", "cfgt3_041"}, {}, {}};

// BeiDou counts only beside GPS without GLONASS.
inline constexpr Code kSatellites[] = {
    {.code = "10000", .label = "cfgt3_047", .widget = "radioButton_Gps", .pattern = "10**0"},
    {.code = "01000", .label = "cfgt3_048", .widget = "radioButton_Glnss", .pattern = "01***"},
    {.code = "11000", .label = "cfgt3_049", .widget = "radioButton_GpsGlnss", .pattern = "11***"},
    {.code = "10001", .label = "cfgt3_050", .widget = "radioButton_GpsBeidou", .pattern = "10**1"},
};

inline constexpr Heading kAlways{"cfgt3_002"};
inline constexpr Heading kAlso{"cfgt3_006"};
inline constexpr Heading kLimits{"cfgt3_020"};
inline constexpr Heading kReject{"cfgt3_026"};
inline constexpr Heading kStops{"cfgt3_035"};
inline constexpr Heading kStopSensorsHeading{"cfgt3_040"};
inline constexpr Heading kMotion{"cfgt3_042"};
inline constexpr Heading kReceiver{"cfgt3_046"};

inline constexpr auto kRows = rowsOf(
    group("POINTS"), kAlways, flag("useMoveSens", 1).in("Always_checkBox_StartStop").caption("cfgt3_003"),
    flag("useMaxSpeed", 0).in("Always_checkBox_MaxSpeed").caption("cfgt3_004"),
    integer("maxSpeed", 100)
        .range(1, 180)
        .unit("abbr_024")
        .in("Always_spinBox_MaxSpeed_Value")
        .caption("cfgt3_005"),
    kAlso, shared::kPointsOnTheWay, shared::kUseDistance, shared::kPointsInTime, shared::kMoveTimer,
    digits("moveTimerSens", "000", kMotionSignals).caption("cfgt3_016"), shared::kStopTimer,

    group("LIMPOINT"), kLimits, flag("blockDist", 1).in("Restriction_checkBox_Metr").caption("cfgt3_021"),
    integer("dist", 10)
        .range(1, 200)
        .unit("abbr_022")
        .in("Restriction_spinBox_Metr_Value")
        .caption("cfgt3_022"),
    flag("blockTimer", 0).in("Restriction_checkBox_Sec").caption("cfgt3_023"),
    integer("timer", 5)
        .range(1, 99999)
        .unit("abbr_003")
        .in("Restriction_spinBox_Sec_Value")
        .caption("cfgt3_024"),

    group("COORDFLT"), kNoHeading, flag("use", 1).in("checkBox_GPSreject_Use").caption("cfgt3_025"), kReject,
    integer("minSats", 4).range(1, 255).in("spinBox_RejectCoord_SatMin").caption("cfgt3_029"),
    real("maxHDOP", 2.5, 1)
        .range(0.1, 100)
        .stepping(0.1)
        .readSingle()
        .in("doubleSpinBox_RejectCoord_maxHDOP")
        .caption("cfgt3_030"),
    integer("maxSpeed", 200)
        .range(1, 1500)
        .unit("abbr_024")
        .in("spinBox_RejectCoord_speed")
        .caption("cfgt3_031"),
    integer("maxAccel", 25)
        .range(1, 100)
        .unit("abbr_024")
        .in("spinBox_RejectCoord_accel")
        .caption("cfgt3_032"),
    integer("maxDist", 100)
        .range(1, 500)
        .unit("abbr_022")
        .in("spinBox_RejectCoord_move")
        .caption("cfgt3_033"),
    integer("maxFilterCnt", 5).range(0, 60).in("spinBox_RejectCoord_flaw").caption("cfgt3_034"),

    group("COORDAVER"), kStops, choice("mode", kStopModes, "1").byNumber().caption("cfgt3_036"),
    kStopSensorsHeading, digits("sensors", "1110", kStopSensors).caption("cfgt3_040"),

    group("MOVESENS"), kMotion, constant("mode", "1"),
    integer("stopTimer", 30).range(0, 65535).unit("abbr_003").in("spinBox_ParkingStop").caption("cfgt3_043"),

    group("GNSS"), kReceiver, choice("mode", kSatellites, "11000").caption("cfgt3_046"),
    integer("angle", 5).range(0, 90).unit("abbr_016").in("spinBox_AxcelMask").caption("cfgt3_051"));

} // namespace vlk::track
