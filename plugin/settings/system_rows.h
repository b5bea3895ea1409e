#pragma once

// The rows of the table that system_settings.h tells of.

#include "settings/shared_rows.h"
#include "settings/system_settings.h"

namespace vlk::system {

inline constexpr const char* kSection = "SYSTEM";

// clang-format off
inline constexpr Position kFuelConditions[] = {
    {"checkBox_Fuel_In1",    "cfgt4_033"},  // Ignition on
    {"checkBox_Fuel_Engine", "cfgt4_034"},  // Engine running (by supply voltage)
    {"checkBox_Fuel_Level",  "cfgt4_035"},  // Sufficient supply voltage
};

inline constexpr Code kFuelErrors[] = {
    {.code = "0", .label = "cfgt4_040", .widget = "radioButton_Fuel_Error_Code"},   // send error codes
    {.code = "1", .label = "cfgt4_041", .widget = "radioButton_Fuel_Error_Fixed"},  // hold the last readings
};
// clang-format on

inline constexpr Heading kPasswords{"cfgt4_005"};    // Access to the tracker
inline constexpr Heading kTime{"cfgt4_002"};         // Time
inline constexpr Heading kFuel{"cfgt4_031"};         // Fuel level sensors
inline constexpr Heading kEngine{"cfgt4_025"};       // Engine detection
inline constexpr Heading kSupply{"cfgt4_017"};       // Supply voltage sensor
inline constexpr Heading kSupplyLevels{"cfgt4_023"}; // Levels of the supply voltage sensor

// Voltages stand in the file in millivolts.
// clang-format off
inline constexpr auto kRows = rowsOf(
    group("PASS"), kPasswords,
    shared::kPasswords,

    group("TIME"), kTime,
    integer("zone", 3).range(-12, 12).unit("abbr_001").in("TimeZone_spinBox_Value")  .caption("cfgt4_003"),  // Time zone relative to Greenwich
    flag("DST", 0)                                    .in("AllowDecretTime_checkBox").caption("cfgt4_004"),  // Change to summer time

    group("FUEL"), kFuel,
    digits("sensors", "000", kFuelConditions)                                                          .caption("cfgt4_043"),  // When fuel sensor readings count
    volts("blockVolt", 8000)             .range(0, 31)                  .in("doubleSpinBox_Fuel_Left") .caption("cfgt4_036"),  // Sensors are switched off at
    volts("unblockVolt", 11000)          .range(0, 31)                  .in("doubleSpinBox_Fuel_Right").caption("cfgt4_037"),  // Sensors are switched on at
    integer("unblockDelay", 5)           .range(0, 120).unit("abbr_003").in("spinBox_Fuel_Delay")      .caption("cfgt4_038"),  // Delay before a sensor is switched on
    choice("errorMode", kFuelErrors, "0").byNumber().unknownIs("0")                                    .caption("cfgt4_039"),  // On a fault of digital fuel sensors

    group("ENGSENS"), kEngine,
    flag("useCustom", 0)                    .in("checkBox_Tuning")                                        .caption("cfgt4_026"),  // Set the supply voltage threshold by hand
    volts("voltageLvl", 13200).range(5, 32) .in("doubleSpinBox_Tuning").beside("horizontalSlider_Tuning") .caption("cfgt4_027"),  // Supply voltage threshold
    flag("noEvent", 0)                      .in("checkBox_NoEvnt")                                        .caption("cfgt4_028"),  // Do not record telemetry on engine detection...
    integer("delay", 0)       .range(0, 255).in("spinBox_Engine_Delay").offAtZero("checkBox_Engine_Delay").caption("cfgt4_024"),  // Delay of the sensor's trigger

    group("PWRSENS"), kSupply,
    shared::kSupplyLine,
    kSupplyLevels,
    volts("alarmLvl", 10500)  .range(6, 32) .in("doubleSpinBox_Power_Left")                             .caption("cfgt4_021"),  // The sensor triggers at
    volts("restoreLvl", 11000).range(6, 32) .in("doubleSpinBox_Power_Right")                            .caption("cfgt4_022"),  // The sensor restores at
    integer("delay", 0)       .range(0, 255).in("spinBox_Power_Delay").offAtZero("checkBox_Power_Delay").caption("cfgt4_024"),  // Delay of the sensor's trigger

    group("NTP"), kTime,
    flag("use", 1)                                                           .in("checkBox_NTP_Use")       .caption("cfgt4_010"),  // Synchronise the time by NTP
    integer("usualPeriod", 720).range(10, 65535).stepping(5).unit("abbr_002").in("spinBox_NTP_UsualPeriod").caption("cfgt4_011"),  // Synchronisation period
    integer("faultPeriod", 60) .range(10, 65535).stepping(5).unit("abbr_002").in("spinBox_NTP_FaultPeriod").caption("cfgt4_012"),  // Synchronisation period after an error
    shared::host(text("ntpSrv1", "0.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_1").caption("cfgt4_013"),   // NTP server No. 1
    shared::host(text("ntpSrv2", "1.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_2").caption("cfgt4_014"),   // NTP server No. 2
    shared::host(text("ntpSrv3", "2.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_3").caption("cfgt4_015"),   // NTP server No. 3
    shared::host(text("ntpSrv4", "3.pool.ntp.org")).upTo(23).in("lineEdit_NTP_Srv_4").caption("cfgt4_016"));  // NTP server No. 4
// clang-format on

} // namespace vlk::system
