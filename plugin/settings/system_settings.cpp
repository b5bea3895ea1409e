#include "settings/system_settings.h"

#include "settings/shared_rows.h"

namespace vlk {

namespace {

constexpr Position kFuelConditions[] = {
    {"checkBox_Fuel_In1", "cfgt4_033"},
    {"checkBox_Fuel_Engine", "cfgt4_034"},
    {"checkBox_Fuel_Level", "cfgt4_035"},
};

constexpr Code kFuelErrors[] = {
    {.code = "0", .label = "cfgt4_040", .widget = "radioButton_Fuel_Error_Code"},
    {.code = "1", .label = "cfgt4_041", .widget = "radioButton_Fuel_Error_Fixed"},
};

constexpr Heading kPasswords{"cfgt4_005"};
constexpr Heading kTime{"cfgt4_002"};
constexpr Heading kFuel{"cfgt4_031"};
constexpr Heading kEngine{"cfgt4_025"};
constexpr Heading kSupply{"cfgt4_017"};
constexpr Heading kSupplyLevels{"cfgt4_023"};

// Voltages stand in the file in millivolts.
constexpr auto kRows = rowsOf(
    group("PASS"), kPasswords, shared::kPasswords,

    group("TIME"), kTime,
    integer("zone", 3).range(-12, 12).unit("abbr_001").in("TimeZone_spinBox_Value").caption("cfgt4_003"),
    flag("DST", 0).in("AllowDecretTime_checkBox").caption("cfgt4_004"),

    group("FUEL"), kFuel, digits("sensors", "000", kFuelConditions).caption("cfgt4_043"),
    volts("blockVolt", 8000).range(0, 31).in("doubleSpinBox_Fuel_Left").caption("cfgt4_036"),
    volts("unblockVolt", 11000).range(0, 31).in("doubleSpinBox_Fuel_Right").caption("cfgt4_037"),
    integer("unblockDelay", 5).range(0, 120).unit("abbr_003").in("spinBox_Fuel_Delay").caption("cfgt4_038"),
    choice("errorMode", kFuelErrors, "0").byNumber().unknownIs("0").caption("cfgt4_039"),

    group("ENGSENS"), kEngine, flag("useCustom", 0).in("checkBox_Tuning").caption("cfgt4_026"),
    volts("voltageLvl", 13200)
        .range(5, 32)
        .in("doubleSpinBox_Tuning")
        .beside("horizontalSlider_Tuning")
        .caption("cfgt4_027"),
    flag("noEvent", 0).in("checkBox_NoEvnt").caption("cfgt4_028"),
    integer("delay", 0)
        .range(0, 255)
        .in("spinBox_Engine_Delay")
        .offAtZero("checkBox_Engine_Delay")
        .caption("cfgt4_024"),

    group("PWRSENS"), kSupply, shared::kSupplyLine, kSupplyLevels,
    volts("alarmLvl", 10500).range(6, 32).in("doubleSpinBox_Power_Left").caption("cfgt4_021"),
    volts("restoreLvl", 11000).range(6, 32).in("doubleSpinBox_Power_Right").caption("cfgt4_022"),
    integer("delay", 0)
        .range(0, 255)
        .in("spinBox_Power_Delay")
        .offAtZero("checkBox_Power_Delay")
        .caption("cfgt4_024"),

    group("NTP"), kTime, flag("use", 1).in("checkBox_NTP_Use").caption("cfgt4_010"),
    integer("usualPeriod", 720)
        .range(10, 65535)
        .stepping(5)
        .unit("abbr_002")
        .in("spinBox_NTP_UsualPeriod")
        .caption("cfgt4_011"),
    integer("faultPeriod", 60)
        .range(10, 65535)
        .stepping(5)
        .unit("abbr_002")
        .in("spinBox_NTP_FaultPeriod")
        .caption("cfgt4_012"),
    shared::host(text("ntpSrv1", "0.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_1").caption("cfgt4_013"),
    shared::host(text("ntpSrv2", "1.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_2").caption("cfgt4_014"),
    shared::host(text("ntpSrv3", "2.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_3").caption("cfgt4_015"),
    shared::host(text("ntpSrv4", "3.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_4").caption("cfgt4_016"));

// Without the line that measures the supply voltage nothing can be told from it.
constexpr auto kSets = rulesOf(always(unless("PWRSENS/line"), "FUEL/sensors", "*00"));

constexpr auto kDistances = rulesOf(
    Distance{.first = "FUEL/blockVolt", .second = "FUEL/unblockVolt", .gap = 0.5, .slider = "slider_Fuel"},
    Distance{
        .first = "PWRSENS/alarmLvl", .second = "PWRSENS/restoreLvl", .gap = 0.5, .slider = "slider_Power"});

constexpr auto kEnables =
    rulesOf(enable("checkBox_Fuel_Engine checkBox_Fuel_Level", when("PWRSENS/line")),
            enable(parts("groupBox_Power_SensLevel Settings_groupBox_Engine"), when("PWRSENS/line")),
            enable(parts("frame_Slider_Fuel"), when("FUEL/sensors", "001|011|101|111")),
            enable(parts("groupBox_Tuning"), when("ENGSENS/useCustom")),
            enable(parts("frame_NTP_Param_Set frame_NTP_Param_Srv"), when("NTP/use")));

} // namespace

constexpr SettingsTable kSystemSettings = tableOf<kRows, kSets, kDistances, kEnables>("SYSTEM", "cfgt4_001");

} // namespace vlk
