#include "settings/lines_out_settings.h"

#include "settings/lines_out_rows.h"

namespace vlk {

namespace {

using namespace lines_out;

// clang-format off
constexpr auto kSets = rulesOf(
    onEditOrRead(when("LINE1/mode", "GP"),       "LINE1/use",        "GP"),
    onEditOrRead(when("LINE1/mode", "ZUM"),      "LINE1/use",        "ZUM"),
    onEditOrRead(unless("LINE1/mode", "GP|ZUM"), "LINE1/use",        "N/A"),
    onEdit(when("LINE1/use", "TM_KEY|TM_REG"),   "LINE1/signalForm", "0"),
    onEdit(when("LINE1/use", "TM_KEY_IND"),      "LINE1/signalForm", "2"),
    afterRead(unless("LINE1/mode", "GP"),        "LINE1/safeBlock",  "0"),
    onSave(unless("LINE1/mode", "GP"),           "LINE1/safeBlock",  "0"),
    afterRead(unless("LINE1/mode", kBuzzers),    "LINE1/zumGen",     "0"),
    onSave(unless("LINE1/mode", kBuzzers),       "LINE1/zumGen",     "0"));

constexpr auto kRanges = rulesOf(
    RangeWhen{.when = when("LINE1/use", "TM_KEY|TM_REG"),                      .path = "LINE1/signalForm", .offers = "0|1"},
    RangeWhen{.when = when("LINE1/use", "IMMOB|STS_AINF|LOUT_MUT|TM_KEY_IND"), .path = "LINE1/actions",    .offers = "0|1"});

constexpr const char* kFreeForm = "GP|AF_GZ|SIREN|TM_KEY|TM_REG";
constexpr const char* kTimed = "GP|AF_GZ|SIREN|TM_KEY|TM_REG|TM_KEY_IND";

constexpr auto kEnables = rulesOf(
    enable("comboBox_SignalForm_O1",                                   when("LINE1/use", kFreeForm)),
    enable(parts("frame_ActivePhase_1"),                               when("LINE1/use", kTimed),    when("LINE1/signalForm", "1|2")),
    enable(parts("frame_PassivePhase_1"),                              when("LINE1/use", kTimed),    when("LINE1/signalForm", "2")),
    enable(parts("frame_TimeAutoSwitchOff_1"),                         when("LINE1/use", kFreeForm), when("LINE1/signalForm", "2")),
    enable("spinBox_TimeAutoSwitchOff_O1",                             when("LINE1/autoOff")),
    enable("checkBox_SafeBlock_O1 spinBox_DelayBlock_On_MainState_O1", when("LINE1/use", "GP")),
    enable("comboBox_AutoSwitch_In1_O1 comboBox_AutoSwitch_In2_O1 comboBox_AutoSwitch_In3_O1 "
           "comboBox_AutoSwitch_U_Min_O1 comboBox_AutoSwitch_U_Norm_O1 comboBox_AutoSwitch_Engine_On_O1 "
           "comboBox_AutoSwitch_Engine_Off_O1 comboBox_AutoSwitch_Guard_Norm_O1",
           when("LINE1/use", "GP|IMMOB")),
    enable("comboBox_AutoSwitch_SH1_O1 comboBox_AutoSwitch_SH2_O1 comboBox_AutoSwitch_SH3_O1 "
           "comboBox_AutoSwitch_SH4_O1 comboBox_AutoSwitch_Temp_Min_O1 comboBox_AutoSwitch_Temp_Max_O1 "
           "comboBox_AutoSwitch_Temp_Norm_O1",
           when("LINE1/use", "GP")),
    show("checkBox_ZumG_O1",                                           when("LINE1/use", kBuzzers)),
    show(parts("label_ZumG"),                                          when("LINE1/use", kBuzzers)));
// clang-format on

} // namespace

constexpr SettingsTable kLinesOutSettings = tableOf<kRows, kSets, kRanges, kEnables>(kSection, "cfgt10_001");

constexpr std::span<const Code> kOutputUses = kUses;

} // namespace vlk
