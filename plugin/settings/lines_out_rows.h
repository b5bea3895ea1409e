#pragma once

// The rows of the table that lines_out_settings.h tells of.

#include "settings/lines_out_settings.h"

namespace vlk::lines_out {

inline constexpr const char* kSection = "OUTPUTS";

inline constexpr Code kUses[] = {
    {.code = "GP", .label = "cfgt10_002"},       {.code = "ZUM", .label = "cfgt10_003"},
    {.code = "LED", .label = "cfgt10_004"},      {.code = "MUT", .label = "cfgt10_005"},
    {.code = "AF_GZ", .label = "cfgt10_006"},    {.code = "TM_KEY", .label = "cfgt10_007"},
    {.code = "TM_REG", .label = "cfgt10_008"},   {.code = "IMMOB", .label = "cfgt10_009"},
    {.code = "STS_AINF", .label = "cfgt10_010"}, {.code = "LOUT_MUT", .label = "cfgt10_011"},
    {.code = "SIREN", .label = "cfgt10_012"},    {.code = "TM_KEY_IND", .label = "cfgt10_013"},
};

inline constexpr Code kSignalForms[] = {
    {.code = "0", .label = "cfgt10_015"},
    {.code = "1", .label = "cfgt10_016"},
    {.code = "2", .label = "cfgt10_017"},
};

// What an event does to the line.
inline constexpr Code kActions[] = {
    {.code = "0", .label = "cfgt10_018"},
    {.code = "1", .label = "cfgt10_019"},
    {.code = "2", .label = "cfgt10_020"},
};

constexpr Position event(const char* widget, const char* caption)
{
    return {widget, caption, 2};
}

inline constexpr Position kEvents[] = {
    event("comboBox_AutoSwitch_In1_O1", "cfgt10_031"),
    event("comboBox_AutoSwitch_In2_O1", "cfgt10_032"),
    event("comboBox_AutoSwitch_In3_O1", "cfgt10_033"),
    {},
    {},
    event("comboBox_AutoSwitch_SH1_O1", "cfgt10_034"),
    event("comboBox_AutoSwitch_SH2_O1", "cfgt10_035"),
    event("comboBox_AutoSwitch_SH3_O1", "cfgt10_036"),
    event("comboBox_AutoSwitch_SH4_O1", "cfgt10_037"),
    event("comboBox_AutoSwitch_U_Min_O1", "cfgt10_038"),
    event("comboBox_AutoSwitch_U_Norm_O1", "cfgt10_039"),
    event("comboBox_AutoSwitch_Temp_Min_O1", "cfgt10_040"),
    event("comboBox_AutoSwitch_Temp_Max_O1", "cfgt10_041"),
    event("comboBox_AutoSwitch_Temp_Norm_O1", "cfgt10_042"),
    event("comboBox_AutoSwitch_Engine_On_O1", "cfgt10_043"),
    event("comboBox_AutoSwitch_Engine_Off_O1", "cfgt10_044"),
    event("comboBox_AutoSwitch_Guard_Norm_O1", "cfgt10_045"),
    {},
    {},
    {},
};

constexpr auto seconds(const char* key, int loadDefault)
{
    return integer(key, loadDefault).range(0, 86400).unit("abbr_003");
}

inline constexpr Heading kLine{"cfgt10_048", "%1 O1"};
inline constexpr Heading kEventsHeading{"cfgt10_046"};

inline constexpr const char* kBuzzers = "ZUM|TM_KEY_IND";

// `mode` is what the list offers and the file holds; `use` is what the controls go by, which the rules know
// for more uses than the list has.
inline constexpr auto kRows =
    rowsOf(group("LINE1"), kLine,
           text("nickname", DefaultText{"%1 O1", "cfgt10_048"})
               .upTo(20)
               .typed("^.{0,20}$")
               .in("lineEdit_Name_O1")
               .caption("cfgt10_021"),
           choice("mode", kUses, "ZUM")
               .resetTo("GP")
               .offering("GP|ZUM")
               .unknownIs("N/A")
               .noItemIs("N/A")
               .in("comboBox_UseAs_O1")
               .caption("cfgt10_022"),
           choice("use", kUses, "GP").unknownIs("N/A").noItemIs("N/A").notStored(), kEventsHeading,
           digits("actions", "00000000000000000000", kEvents).listing(kActions), kLine,
           choice("signalForm", kSignalForms, "0")
               .byNumber()
               .unknownIs("0")
               .in("comboBox_SignalForm_O1")
               .caption("cfgt10_023"),
           seconds("onPeriod", 0).in("spinBox_ActivePhase_O1").caption("cfgt10_024"),
           seconds("offPeriod", 0).in("spinBox_PassivePhase_O1").caption("cfgt10_025"),
           flag("autoOff", 0).in("checkBox_TimeAutoSwitchOff_O1").caption("cfgt10_026"),
           seconds("autoOffDelay", 0).in("spinBox_TimeAutoSwitchOff_O1").caption("cfgt10_027"),
           flag("safeBlock", 0).in("checkBox_SafeBlock_O1").caption("cfgt10_028"),
           seconds("onDelay", 60)
               .resetTo(0)
               .onlyWhen(when("LINE1/mode", "GP"))
               .in("spinBox_DelayBlock_On_MainState_O1")
               .caption("cfgt10_029"),
           flag("zumGen", 0).in("checkBox_ZumG_O1").caption("cfgt10_030"));

} // namespace vlk::lines_out
