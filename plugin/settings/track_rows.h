#pragma once

// The rows of the table that track_settings.h tells of.

#include "settings/shared_rows.h"
#include "settings/track_settings.h"

namespace vlk::track {

inline constexpr const char* kSection = "TRACK";

// clang-format off
inline constexpr Position kMotionSignals[] = {
    {"checkBox_TmrFlag_In1",    "cfgt3_017"},  // Ignition
    {"checkBox_TmrFlag_Engine", "cfgt3_018"},  // Engine running (by supply voltage)
    {"checkBox_TmrFlag_Taho",   "cfgt3_019"},  // Tachometer
};

inline constexpr Code kStopModes[] = {
    {.code = "0", .label = "cfgt3_037", .widget = "Coord_Stop_radioButton_NotAverage"},  // neither average nor hold coordinates
    {.code = "1", .label = "cfgt3_038", .widget = "Coord_Stop_radioButton_Average"},     // average coordinates
    {.code = "3", .label = "cfgt3_039", .widget = "Coord_Stop_radioButton_Fixed"},       // hold the coordinates of the stopping point
};

// The two behind belong to sensors that this tracker lacks.
inline constexpr Position kStopSensors[] = {
    {"checkBox_Average_IN1",   "cfgt3_017"},  // Ignition
    {"checkBox_Average_Accel", "cfgt3_041"},  // Shock, tilt, movement sensor
    {},
    {}
};

// BeiDou counts only beside GPS without GLONASS.
inline constexpr Code kSatellites[] = {
    {.code = "10000", .label = "cfgt3_047", .widget = "radioButton_Gps",       .pattern = "10**0"},  // GPS
    {.code = "01000", .label = "cfgt3_048", .widget = "radioButton_Glnss",     .pattern = "01***"},  // GLONASS
    {.code = "11000", .label = "cfgt3_049", .widget = "radioButton_GpsGlnss",  .pattern = "11***"},  // GPS + GLONASS
    {.code = "10001", .label = "cfgt3_050", .widget = "radioButton_GpsBeidou", .pattern = "10**1"},  // GPS + Beidou
};
// clang-format on

inline constexpr Heading kAlways{"cfgt3_002"};             // Always record a track point
inline constexpr Heading kAlso{"cfgt3_006"};               // Also record a track point
inline constexpr Heading kLimits{"cfgt3_020"};             // Limit the rate of track points by pauses
inline constexpr Heading kReject{"cfgt3_026"};             // Reject coordinates
inline constexpr Heading kStops{"cfgt3_035"};              // At stops
inline constexpr Heading kStopSensorsHeading{"cfgt3_040"}; // Sensors for averaging and holding
inline constexpr Heading kMotion{"cfgt3_042"};             // Vehicle motion sensor
inline constexpr Heading kReceiver{"cfgt3_046"};           // Satellite systems

// clang-format off
inline constexpr auto kRows = rowsOf(
    group("POINTS"), kAlways,
    flag("useMoveSens", 1)                                 .in("Always_checkBox_StartStop")    .caption("cfgt3_003"),  // On stopping and starting to move
    flag("useMaxSpeed", 0)                                 .in("Always_checkBox_MaxSpeed")     .caption("cfgt3_004"),  // At a speed above
    integer("maxSpeed", 100).range(1, 180).unit("abbr_024").in("Always_spinBox_MaxSpeed_Value").caption("cfgt3_005"),  // Speed threshold
    kAlso,
    shared::kPointsOnTheWay, shared::kUseDistance, shared::kPointsInTime, shared::kMoveTimer,
    digits("moveTimerSens", "000", kMotionSignals)                                             .caption("cfgt3_016"),  // Motion is also told by
    shared::kStopTimer,

    group("LIMPOINT"), kLimits,
    flag("blockDist", 1)                                .in("Restriction_checkBox_Metr")     .caption("cfgt3_021"),  // Distance between points at least
    integer("dist", 10).range(1, 200).unit("abbr_022")  .in("Restriction_spinBox_Metr_Value").caption("cfgt3_022"),  // Least distance between points
    flag("blockTimer", 0)                               .in("Restriction_checkBox_Sec")      .caption("cfgt3_023"),  // Time between points at least
    integer("timer", 5).range(1, 99999).unit("abbr_003").in("Restriction_spinBox_Sec_Value") .caption("cfgt3_024"),  // Least time between points

    group("COORDFLT"), kNoHeading,
    flag("use", 1)                                                       .in("checkBox_GPSreject_Use")           .caption("cfgt3_025"),  // Process coordinates
    kReject,
    integer("minSats", 4)     .range(1, 255)                             .in("spinBox_RejectCoord_SatMin")       .caption("cfgt3_029"),  // Fewer satellites than
    real("maxHDOP", 2.5, 1)   .range(0.1, 100).stepping(0.1).readSingle().in("doubleSpinBox_RejectCoord_maxHDOP").caption("cfgt3_030"),  // HDOP above
    integer("maxSpeed", 200)  .range(1, 1500).unit("abbr_024")           .in("spinBox_RejectCoord_speed")        .caption("cfgt3_031"),  // Speed above
    integer("maxAccel", 25)   .range(1, 100).unit("abbr_024")            .in("spinBox_RejectCoord_accel")        .caption("cfgt3_032"),  // Speed gain in 1 s above
    integer("maxDist", 100)   .range(1, 500).unit("abbr_022")            .in("spinBox_RejectCoord_move")         .caption("cfgt3_033"),  // Displacement in 2 s above
    integer("maxFilterCnt", 5).range(0, 60)                              .in("spinBox_RejectCoord_flaw")         .caption("cfgt3_034"),  // Coordinates to reject

    group("COORDAVER"), kStops,
    choice("mode", kStopModes, "1").byNumber().caption("cfgt3_036"),  // Coordinates at stops
    kStopSensorsHeading,
    digits("sensors", "1110", kStopSensors)   .caption("cfgt3_040"),  // Sensors for averaging and holding

    group("MOVESENS"), kMotion,
    constant("mode", "1"),
    integer("stopTimer", 30).range(0, 65535).unit("abbr_003").in("spinBox_ParkingStop").caption("cfgt3_043"),  // Record stops longer than

    group("GNSS"), kReceiver,
    choice("mode", kSatellites, "11000")                                     .caption("cfgt3_046"),   // Satellite systems
    integer("angle", 5).range(0, 90).unit("abbr_016").in("spinBox_AxcelMask").caption("cfgt3_051"));  // Elevation mask angle
// clang-format on

} // namespace vlk::track
