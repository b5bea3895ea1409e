#pragma once

// The rows of the table that lines_in_settings.h tells of.

#include "settings/lines_in_settings.h"

namespace vlk::lines_in {

inline constexpr const char* kSection = "SENSORS";

// clang-format off
inline constexpr Code kUses[] = {
    {.code = "NU",   .label = "cfgt8_002"},                   // Not used
    {.code = "NS-",  .label = "cfgt8_003", .format = "%1-"},  // Normally closed-
    {.code = "NB-",  .label = "cfgt8_004", .format = "%1-"},  // Normally open-
    {.code = "NS+",  .label = "cfgt8_003", .format = "%1+"},  // Normally closed+
    {.code = "NB+",  .label = "cfgt8_004", .format = "%1+"},  // Normally open+
    {.code = "PLS",  .label = "cfgt8_005"},                   // Pulse-counting input
    {.code = "FRQ",  .label = "cfgt8_006"},                   // Frequency input
    {.code = "AIN",  .label = "cfgt8_007"},                   // Analogue input
    {.code = "TAHO", .label = "cfgt8_008"},                   // Tachometer
};

// Tenths of a millisecond.
inline constexpr Code kAnalysisTimes[] = {
    {.code = "1250",  .label = "abbr_040", .format = "125 %1"},   // 125 ms
    {.code = "2500",  .label = "abbr_040", .format = "250 %1"},   // 250 ms
    {.code = "5000",  .label = "abbr_040", .format = "500 %1"},   // 500 ms
    {.code = "10000", .label = "abbr_040", .format = "1000 %1"},  // 1000 ms
    {.code = "20000", .label = "abbr_040", .format = "2000 %1"},  // 2000 ms
};

inline constexpr Code kCountResets[] = {
    {.code = "0", .label = "cfgt8_034"},  // not used
    {.code = "1", .label = "cfgt8_035"},  // any event
    {.code = "2", .label = "cfgt8_036"},  // an event of the pulse-counting input
};
// clang-format on

// What the lines differ in.
struct Line
{
    Heading heading;
    DefaultText name;
    const char* use;
    const char* uses;
    bool isIgnition; // in a new configuration
    const char* analysisTime;
    bool hasLevels;    // lowLvl and highLvl
    bool hasThreshold; // widgets for thld and trhldOff
};

// clang-format off
inline constexpr Line kLines[] = {
    {{"cfgt8_010"}, {"%1", "cfgt8_021"},      "NB+", "NU|NS+|NB+",     true,  "10000", false, false},  // Line IN1 / Ignition
    {{"cfgt8_011"}, {"%1 IN2", "cfgt8_009"},  "NU",  "NU|NS-|NB-",     false, "2500",  true,  false},  // Line IN2 / Input line
    {{"cfgt8_012"}, {"%1 AIN3", "cfgt8_009"}, "NU",  "NU|NS+|NB+|AIN", false, "2500",  true,  true},   // Line AIN3 / Input line
};
// clang-format on

constexpr auto analysisTime(const char* widget, const char* reset)
{
    return choice("analysTime", kAnalysisTimes, "2500")
        .byNumber()
        .unknownIs("0")
        .noItemIs("0")
        .resetTo(reset)
        .in(widget)
        .caption("cfgt8_023");
}

constexpr auto pulses(const char* key, int loadDefault)
{
    return integer(key, loadDefault).range(0, 65535);
}

constexpr auto seconds(const char* key, int loadDefault)
{
    return integer(key, loadDefault).range(0, 255).unit("abbr_003");
}

constexpr auto fixationLevel(const char* box, const char* slider)
{
    return volts("thldBand", kFixationLevel).range(0, 31).in(box).beside(slider).caption("cfgt8_039");
}

constexpr auto filter(const char* use, const char* window, const char* level)
{
    // clang-format off
    return rowsOf(
        flag("filterMode", 1)                .in(use)   .caption("cfgt8_040"),   // Switch filtering on
        integer("filterLen", 30).range(1, 30).in(window).caption("cfgt8_041"),   // Averaging window
        integer("filterLvl", 5) .range(0, 10).in(level) .caption("cfgt8_042"));  // Level of additional filtering
    // clang-format on
}

template <int number>
constexpr auto lineRows()
{
    constexpr Line line = kLines[number - 1];
    // clang-format off
    constexpr auto common = rowsOf(
        group("IN%1"),
        text("name", line.name).upTo(20).typed("^.{0,20}$")                 .in("lineEdit_Name_In%1")          .caption("cfgt8_013"),  // Line name
        choice("normState", kUses, line.use).offering(line.uses).unknownIs("NU").noItemIs("N/A").in("comboBox_NormState_In%1").caption("cfgt8_014"),  // Use as
        flag("ign", 0)         .resetTo(line.isIgnition ? 1 : 0).notStored().in("checkBox_Ignition_In%1")      .caption("cfgt8_015"),  // Assign as ignition
        flag("cntlRestore", 0) .resetTo(line.isIgnition ? 1 : 0).notStored().in("checkBox_ControlRestore_In%1").caption("cfgt8_016"),  // Record the restore
        flag("pullUp", 0)      .notStored());
    constexpr auto threshold = [] {
        if constexpr (line.hasThreshold)
            return rowsOf(
                integer("thld", 1) .range(1, 20).resetTo(20).notStored().in("spinBox_Response_In%1")     .caption("cfgt8_017"),   // Sensitivity threshold
                flag("trhldOff", 0).notStored()                         .in("checkBox_TrhldMoveOff_In%1").caption("cfgt8_018"));  // Ignore the threshold in motion
        else
            return std::array<Setting, 0>{};
    }();
    constexpr auto levels = [] {
        if constexpr (line.hasLevels)
            return rowsOf(
                volts("lowLvl", 5000) .range(0, 30.5).in("doubleSpinBox_AIN_Left") .caption("cfgt8_024"),   // Lower threshold
                volts("highLvl", 6000).range(0.5, 31).in("doubleSpinBox_AIN_Right").caption("cfgt8_025"));  // Upper threshold
        else
            return std::array<Setting, 0>{};
    }();

    constexpr auto shared = rowsOf(link("cntlRestore", "IN%1/cntlRestore", 1), link("ign", "IN%1/ign", 1));
    constexpr auto pullUp = link("pullUp", "IN%1/pullUp", 0);
    constexpr auto ownThreshold =
        line.hasThreshold ? rowsOf(link("thld", "IN%1/thld", 2000), link("trhldOff", "IN%1/trhldOff", 1))
                          : rowsOf(integer("thld", 2000), flag("trhldOff", 1));

    return numbered(rowsOf(
        kLines[number - 1].heading,
        common, threshold,

        group("IN%1/IN%1DIN").onlyWhen(when("IN%1/normState", "NS-|NB-")),
        shared,
        analysisTime("comboBox_NB_Time", "2500"),

        group("IN%1/IN%1ADIN").onlyWhen(when("IN%1/normState", "NS+|NB+")),
        shared,
        analysisTime("comboBox_AIN_Time", line.analysisTime),
        levels,

        group("IN%1/IN%1PLS").onlyWhen(when("IN%1/normState", "PLS")),
        pullUp,
        scaled("filterTime", 0, 10, 1).range(0.1, 200).stepping(0.1).unit("abbr_040")
                .in("doubleSpinBox_PLS_MinPeriod").offAtZero("checkBox_PLS_MinPeriod").caption("cfgt8_026"),                  // Debounce filter
        pulses("startCount", 10)                                        .in("spinBox_PLS_Start_Count").caption("cfgt8_027"),  // Start of counting, pulses
        seconds("startTime", 5)                                         .in("spinBox_PLS_Start_Time") .caption("cfgt8_028"),  // Start of counting, within
        pulses("stopCount", 3)                                          .in("spinBox_PLS_Stop_Count") .caption("cfgt8_029"),  // End of counting, pulses
        seconds("stopTime", 3)                                          .in("spinBox_PLS_Stop_Time")  .caption("cfgt8_030"),  // End of counting, within
        flag("setLine", 0)                                              .in("checkBox_PLS_SetLine")   .caption("cfgt8_031"),  // Activate the line while counting
        flag("ignrMove", 0)                                             .in("checkBox_PLS_IgnrMove")  .caption("cfgt8_032"),  // Ignore pulses in motion
        choice("resetMode", kCountResets, "0").byNumber().unknownIs("0").in("comboBox_PLS_Reset")     .caption("cfgt8_033"),  // The value is set to zero when recording
        pulses("eventCount", 0)                                         .in("spinBox_PLS_Work_Count") .caption("cfgt8_037"),  // Count, pulses
        seconds("eventTime", 60)                                        .in("spinBox_PLS_Work_Time")  .caption("cfgt8_038"),  // Count, or after
        fixationLevel("doubleSpinBox_PLS_ThldBand", "horizontalSlider_PLS_ThldBand"),

        group("IN%1/IN%1FRQ").onlyWhen(when("IN%1/normState", "FRQ")),
        pullUp, ownThreshold,
        fixationLevel("doubleSpinBox_FRQ_ThldBand", "horizontalSlider_FRQ_ThldBand"),
        filter("checkBox_FRQ_Filter", "spinBox_FRQ_Aver", "spinBox_FRQ_Kalman"),

        group("IN%1/IN%1AIN").onlyWhen(when("IN%1/normState", "AIN")),
        ownThreshold,
        filter("checkBox_UI_Filter", "spinBox_UI_Aver", "spinBox_UI_Kalman"),

        group("IN%1/IN%1TAHO").onlyWhen(when("IN%1/normState", "TAHO")),
        pullUp, ownThreshold,
        integer("sensThld", 5000).resetTo(2000).range(0, 20000).unit("abbr_018").in("spinBox_TAHO_ZoneLower").caption("cfgt8_043"),  // Threshold value
        integer("tachoKoef", 1)  .range(1, 255)                                 .in("spinBox_TAHO_Koef")     .caption("cfgt8_044"),  // Pulses per revolution
        fixationLevel("doubleSpinBox_TAHO_ThldBand", "horizontalSlider_TAHO_ThldBand")),
        number);
    // clang-format on
}

inline constexpr auto kRows = rowsOf(lineRows<1>(), lineRows<2>(), lineRows<3>());

} // namespace vlk::lines_in
