#pragma once

// The rows of the table that lines_out_settings.h tells of.

#include "settings/lines_out_settings.h"

namespace vlk::lines_out {

inline constexpr const char* kSection = "OUTPUTS";

// clang-format off
inline constexpr Code kUses[] = {
    {.code = "GP",         .label = "cfgt10_002"},  // General purpose
    {.code = "ZUM",        .label = "cfgt10_003"},  // Buzzer
    {.code = "LED",        .label = "cfgt10_004"},  // LED
    {.code = "MUT",        .label = "cfgt10_005"},  // Audio mute
    {.code = "AF_GZ",      .label = "cfgt10_006"},  // Inside a geofence
    {.code = "TM_KEY",     .label = "cfgt10_007"},  // 1-Wire key touched
    {.code = "TM_REG",     .label = "cfgt10_008"},  // 1-Wire key registered
    {.code = "IMMOB",      .label = "cfgt10_009"},  // Engine blocking
    {.code = "STS_AINF",   .label = "cfgt10_010"},  // Announcer state
    {.code = "LOUT_MUT",   .label = "cfgt10_011"},  // Line-out mute
    {.code = "SIREN",      .label = "cfgt10_012"},  // Siren
    {.code = "TM_KEY_IND", .label = "cfgt10_013"},  // 1-Wire key indication
};

inline constexpr Code kSignalForms[] = {
    {.code = "0", .label = "cfgt10_015"},  // Constant
    {.code = "1", .label = "cfgt10_016"},  // Single pulse
    {.code = "2", .label = "cfgt10_017"},  // Periodic
};

// What an event does to the line.
inline constexpr Code kActions[] = {
    {.code = "0", .label = "cfgt10_018"},  // No change
    {.code = "1", .label = "cfgt10_019"},  // Switch on
    {.code = "2", .label = "cfgt10_020"},  // Switch off
};
// clang-format on

constexpr Position event(const char* widget, const char* caption)
{
    return {widget, caption, 2};
}

// clang-format off
inline constexpr Position kEvents[] = {
    event("comboBox_AutoSwitch_In1_O1",        "cfgt10_031"),  // trigger of sensor IN1
    event("comboBox_AutoSwitch_In2_O1",        "cfgt10_032"),  // trigger of sensor IN2
    event("comboBox_AutoSwitch_In3_O1",        "cfgt10_033"),  // trigger of sensor IN3
    {},
    {},
    event("comboBox_AutoSwitch_SH1_O1",        "cfgt10_034"),  // trigger of sensor SH1
    event("comboBox_AutoSwitch_SH2_O1",        "cfgt10_035"),  // trigger of sensor SH2
    event("comboBox_AutoSwitch_SH3_O1",        "cfgt10_036"),  // trigger of sensor SH3
    event("comboBox_AutoSwitch_SH4_O1",        "cfgt10_037"),  // trigger of sensor SH4
    event("comboBox_AutoSwitch_U_Min_O1",      "cfgt10_038"),  // trigger of the supply voltage sensor
    event("comboBox_AutoSwitch_U_Norm_O1",     "cfgt10_039"),  // restore of the supply voltage sensor
    event("comboBox_AutoSwitch_Temp_Min_O1",   "cfgt10_040"),  // temperature too low
    event("comboBox_AutoSwitch_Temp_Max_O1",   "cfgt10_041"),  // temperature too high
    event("comboBox_AutoSwitch_Temp_Norm_O1",  "cfgt10_042"),  // temperature normal again
    event("comboBox_AutoSwitch_Engine_On_O1",  "cfgt10_043"),  // start of the engine (by supply voltage)
    event("comboBox_AutoSwitch_Engine_Off_O1", "cfgt10_044"),  // stop of the engine (by supply voltage)
    event("comboBox_AutoSwitch_Guard_Norm_O1", "cfgt10_045"),  // restore of any sensor IN, AIN, SH
    {},
    {},
    {},
};
// clang-format on

constexpr auto seconds(const char* key, int loadDefault)
{
    return integer(key, loadDefault).range(0, 86400).unit("abbr_003");
}

inline constexpr Heading kLine{"cfgt10_048", "%1 O1"}; // Output line
inline constexpr Heading kEventsHeading{"cfgt10_046"}; // Switches automatically on

inline constexpr const char* kBuzzers = "ZUM|TM_KEY_IND";

// `mode` is what the list offers and the file holds; `use` is what the controls go by, which the rules know
// for more uses than the list has.
// clang-format off
inline constexpr auto kRows = rowsOf(
    group("LINE1"), kLine,
    text("nickname", DefaultText{"%1 O1", "cfgt10_048"}).upTo(20).typed("^.{0,20}$").in("lineEdit_Name_O1").caption("cfgt10_021"),  // Name
    choice("mode", kUses, "ZUM").resetTo("GP").offering("GP|ZUM").unknownIs("N/A").noItemIs("N/A").in("comboBox_UseAs_O1").caption("cfgt10_022"),  // Use as
    choice("use", kUses, "GP")                          .unknownIs("N/A").noItemIs("N/A").notStored(),
    kEventsHeading,
    digits("actions", "00000000000000000000", kEvents)  .listing(kActions),
    kLine,
    choice("signalForm", kSignalForms, "0").byNumber().unknownIs("0").in("comboBox_SignalForm_O1")       .caption("cfgt10_023"),   // Form of the control signal
    seconds("onPeriod", 0)                                           .in("spinBox_ActivePhase_O1")       .caption("cfgt10_024"),   // Time on
    seconds("offPeriod", 0)                                          .in("spinBox_PassivePhase_O1")      .caption("cfgt10_025"),   // Time off
    flag("autoOff", 0)                                               .in("checkBox_TimeAutoSwitchOff_O1").caption("cfgt10_026"),   // Stop switching after
    seconds("autoOffDelay", 0)                                       .in("spinBox_TimeAutoSwitchOff_O1") .caption("cfgt10_027"),   // Time until switching stops
    flag("safeBlock", 0)                                             .in("checkBox_SafeBlock_O1")        .caption("cfgt10_028"),   // Safe blocking
    seconds("onDelay", 60).resetTo(0).onlyWhen(when("LINE1/mode", "GP")).in("spinBox_DelayBlock_On_MainState_O1").caption("cfgt10_029"),  // Delay before the line is switched on
    flag("zumGen", 0)                                                .in("checkBox_ZumG_O1")             .caption("cfgt10_030"));  // Buzzer with its own generator
// clang-format on

} // namespace vlk::lines_out
