#pragma once

// The items and their rules. The left column names items, one or more:
//
//     Power                  the value of the element
//     Temp1..8               Temp1 to Temp8
//     State.5                bit 5 of State
//     StateIn1..3.0..7       the bits of StateIn1, then those of StateIn2, then those of StateIn3
//     State.mode             a further text of State
//
// Items stand in the order in which a row names them, so that item("Temp1") + 2 is Temp3 and
// item("StateIn1.0") + 9 is StateIn2.1.

#include "telemetry/text/named_values.h"
#include "telemetry/text/special_texts.h"

namespace vlk::items {

using enum Shape;
using namespace names;

struct ItemRow
{
    const char* items;
    Rule rule;
};

inline constexpr Rule kPlain = {};
inline constexpr Rule kWithUnit = {.withUnit = true};

// The state of the modem is the first thing that it lacks.
inline constexpr Rule kModemSession = bitAt(6, "tmizta_017", "tmizta_016");
inline constexpr Rule kModemNetwork = {
    .shape = Word, .when = {5, false}, .otherwise = &kModemSession, .set = "tmizta_015"};
inline constexpr Rule kModem = {
    .shape = Word, .when = {0, false}, .otherwise = &kModemNetwork, .set = "tmizta_013"};

// A fuel level is percent or litres, by its highest bit.
inline constexpr Measure kLitres = in(Unit::Litre).per(10).none(0x7FFF);
inline constexpr Measure kPercent = in(Unit::Percent);
inline constexpr Measure kPercentOrNone = kPercent.none(0xFFFF);
inline constexpr Rule kFuelLitres = {
    .shape = General, .when = {15, false}, .measure = &kLitres, .withUnit = true};
inline constexpr Rule kFuelPercent = {
    .when = {15, true}, .measure = &kPercentOrNone, .bits = {0, 15}, .withUnit = true};
inline constexpr Rule kFilteredLitres = {
    .shape = General, .when = {15, false}, .measure = &kLitres, .withUnit = true, .unit = ""};
inline constexpr Rule kFilteredPercent = {
    .when = {15, true}, .measure = &kPercent, .bits = {0, 7}, .withUnit = true};

constexpr Rule orElse(Rule rule, const Rule& otherwise)
{
    rule.otherwise = &otherwise;
    return rule;
}

// clang-format off
inline constexpr ItemRow kItemRows[] = {
    // The record and the device
    {"NumPage Code",                            kPlain},
    {"Time LastTime LbsTime",                   {.shape = ZonedTime}},
    {"Time.local",                              {.shape = DateTime}},
    {"State.0",                                 bit("tmizta_001", "")},                         // Test mode
    {"State.1",                                 bit("tmizta_002", "tmizta_003")},               // Backup / Main
    {"State.2",                                 bit("tmizta_004", "")},                         // Alarm
    {"State.mode",                              named(kOperatingMode, {3, 2})},
    {"State.5..6",                              bit("wrd_001", "wrd_002")},                     // Yes / No
    {"State.7",                                 bit("tmizta_010", "tmizta_011")},               // Done / Not done
    {"Module1.0",                               bit("tmizta_012", "tmizta_013")},               // On / Off
    {"Module1.1..2",                            bit("tmizta_012", "tmizta_014")},               // On / Disconnected
    {"Module1.3",                               bit("tmizta_018", "tmizta_019")},               // Inserted / Not inserted
    {"Module1.sim",                             bitAt(4, "2", "1")},
    {"Module1.5",                               bit("tmizta_021", "tmizta_020")},               // Registered / Not registered
    {"Module1.6",                               bit("tmizta_017", "tmizta_022")},               // GPRS connected / GPRS not connected
    {"Module1.7",                               bit("tmizta_024", "tmizta_023")},               // Running / Stopped
    {"Module1.modem",                           kModem},
    {"Module2.jamming",                         named(kJamming, {0, 2})},
    {"Module2.2",                               bit("tmizta_026", "wrd_002")},                  // Present / No
    {"Module2.3",                               bit("wrd_001", "wrd_002")},                     // Yes / No
    {"Module2.4",                               bit("wrd_004", "tmizta_360")},                  // Error / Normal
    {"Module2.5..6",                            bit("tmizta_012", "tmizta_013")},               // On / Off
    {"Module3.0..1",                            bit("tmizta_013", "tmizta_012")},               // Off / On
    {"State2.0",                                bit("tmizta_033", "tmizta_032")},               // Active / Inactive
    {"State2.events",                           namedOr("tmizta_060", kComplexEvent, {3, 3})},  // In reserve
    {"StateCnct.connection",                    namedOr("tmizta_087", kConnection, {0, 3})},    // Inactive
    {"StateCnct.3..7",                          bit("tmizta_089", "tmizta_088")},               // Connected / Not connected
    {"GSM",                                     {.none = "tmizta_027", .cut = true}},           // Not determined
    {"Motochas MotochasLoadOn MotochasLoadOff", kPlain},

    // Navigation
    {"StateNGauge.0",                                               bit("tmizta_028", "tmizta_029")},       // On / Off
    {"StateNGauge.1",                                               bit("wrd_001", "wrd_002")},             // Yes / No
    {"StateNGauge.fix",                                             bitAt(1, "tmizta_030", "tmizta_031")},  // Valid / Not valid
    {"StateNGauge.fixOfPacket",                                     bitAt(1, "tmizta_122", "tmizta_121")},  // Valid / Not valid
    {"StateNGauge.satellites NaviState.satellites",                 {.bits = {2, 6}}},
    {"Latitude Longitude",                                          {.shape = Coordinate, .decimals = 4}},
    {"Altitude",                                                    {.cut = true}},
    {"Speed Run Way NaviSpeed",                                     {.shape = Fixed, .decimals = 2}},
    {"Course AllSeconds SecondsLast",                               kPlain},
    {"SecondsLast.reliability",                                     {.shape = Special, .special = segmentReliability, .always = true}},
    {"NaviInfoGlonass NaviInfoGPS NaviInfoGalileo NaviInfoCompass", kPlain},
    {"NaviInfoBeidou NaviInfoDoris NaviInfoIrnss NaviInfoQzss",     kPlain},
    {"NaviHDop NaviPDop",                                           {.shape = Fixed, .decimals = 1}},
    {"NaviState.0",                                                 bit("fixed point", "float point")},
    {"NaviState.1",                                                 bit("tmizta_034", "tmizta_035")},       // Valid / Not valid
    {"NaviLatitude NaviLongitude",                                  {.shape = Coordinate, .decimals = 7}},
    {"NaviAltitude",                                                {.shape = Fixed, .decimals = 3}},
    {"NaviCourse",                                                  {.shape = Fixed, .decimals = 2}},
    {"LbsCellID LbsLac LbsMcc LbsMnc",                              kPlain},
    {"LbsCellID_1 LbsLac_1 LbsMcc_1 LbsMnc_1",                      kPlain},
    {"LbsCellID_2 LbsLac_2 LbsMcc_2 LbsMnc_2",                      kPlain},
    {"LbsLevel LbsLevel_1..2",                                      kWithUnit},
    {"GeozoneInfo.0..9",                                            bit("tmizta_075", "tmizta_074")},       // Inside / Outside

    // Lines and sensors
    {"Power Reserv StateU_Ain1..8",                                {.shape = Fixed, .decimals = 2}},
    {"StateIn1..3.0..7",                                           bit("tmizta_033", "tmizta_032")},  // Active / Inactive
    {"StateOut1..2.0..7",                                          bit("tmizta_028", "tmizta_029")},  // On / Off
    {"StateIn_Imp1..8 Frequency1..8",                              kPlain},
    {"LevelRS232 LevelRS485_1..16 TempRS485_1..16 RS485Freq1..16", kPlain},
    {"Temp1..8",                                                   kWithUnit},
    {"HPrecisionTemp1..4",                                         {.shape = Fixed, .decimals = 2, .withUnit = true}},
    {"HPrecisionHumidity1..4",                                     {.shape = Fixed, .decimals = 1, .withUnit = true}},
    {"TiresNum1..30",                                              kPlain},
    {"TiresPres1..30",                                             {.shape = Fixed, .decimals = 1}},
    {"TiresTemp1..30",                                             kPlain},
    {"Passager_1..16",                                             {.none = "tmizta_073"}},           // No data

    // CAN
    {"CAN_FuelLevel",                                                             orElse(kFuelPercent, kFuelLitres)},
    {"CAN_FuelLevel.percent",                                                     kFuelPercent},
    {"CAN_FuelLevel.litres",                                                      kFuelLitres},
    {"CAN_LevelFiltr",                                                            orElse(kFilteredPercent, kFilteredLitres)},
    {"CAN_LevelFiltr.percent",                                                    kFilteredPercent},
    {"CAN_LevelFiltr.litres",                                                     kFilteredLitres},
    {"CAN_FuelConsumption CAN_FullRun",                                           {.shape = General, .withUnit = true}},
    {"CAN_EngineTurns",                                                           kPlain},
    {"CAN_EngineLoad CAN_PedalAccel CAN_PedalStop CAN_Speed CAN_Temp CAN_TimeTO", kWithUnit},
    {"CAN_EngineTime",                                                            {.shape = General, .withUnit = true}},
    {"CAN_AxleLoad_1..5",                                                         kWithUnit},
    {"CAN3State.0..15 CAN3Crash.0..31 CAN3FailureLamp.0..7",                      bit("wrd_001", "wrd_002")},                                   // Yes / No
    {"CAN3Event",                                                                 namedOr("tmizta_009", kCanEvent, {}, Other::WordAndNumber)},  // Unknown
    {"CAN3FailureCode",                                                           kPlain},

    // Tachograph and driver display
    {"TahoState.activity1", named(kTachographActivity, {0, 2})},
    {"TahoState.card1",     named(kTachographCard, {2, 2})},
    {"TahoState.activity2", named(kTachographActivity, {4, 2})},
    {"TahoState.card2",     named(kTachographCard, {6, 2})},
    {"TahoMode",            namedOr("tmizta_009", kTachographMode)},                           // Unknown
    {"TahoFlags.0..4",      bit("tmizta_028", "tmizta_029")},                                  // On / Off
    {"TahoFlags.5",         bit("tmizta_026", "wrd_004")},                                     // Present / Error
    {"TahoFlags.group1",    namedOr("tmizta_054", kTimeGroup, {6, 3}, Other::WordAndNumber)},  // Other
    {"TahoFlags.group2",    namedOr("tmizta_054", kTimeGroup, {9, 3}, Other::WordAndNumber)},  // Other
    {"TahoSpeed",           kPlain},
    {"TahoOdometer",        {.shape = General}},
    {"TahoTime",            {.shape = LocalTime}},
    {"DispCur",             namedOr("tmizta_009", kDriverState)},                              // Unknown
    {"DispLastIndex",       {.none = "tmizta_070"}},                                           // No messages

    // Accelerometer and driving
    {"AccelDelta",                                                   {.shape = General, .none = "tmizta_071"}},  // Out of range
    {"AccelLinearX AccelLinearY AccelLinearZ AccelAngularPlus AccelAngularMinus AccelAngularCorner",
     {.shape = Fixed, .decimals = 3, .none = "tmizta_072"}},                                                     // Not measured
    {"AccelLinearX.axes",                                            {.shape = Special, .special = linearAxes}},
    {"AccelModule",                                                  {.shape = Fixed, .decimals = 2, .none = "> 655.34"}},
    {"VAccelState.0..4",                                             bit("tmizta_091", "tmizta_090")},           // Triggered / Not triggered
    {"VAccelVertical",                                               {.shape = Fixed, .decimals = 2}},
    {"VAccelLineTang VAccelAxelsX VAccelAxelsY VAccelAxelsZ",        kPlain},
    {"VAccelLineRoll",                                               {.shape = Fixed, .decimals = 1}},
    {"EcoDrvAccelMax",                                               {.shape = Fixed, .decimals = 3}},
    {"EcoDrvSpeedMax",                                               kPlain},
    {"EcoDrvSpeedState.0..5 EcoDrvAccel1..2.0..7 EcoDrvAccel3.0..3", bit("tmizta_091", "tmizta_092")},           // Triggered / Not exceeded

    // Announcer and camera
    {"AinfState.0",                          bit("tmizta_012", "tmizta_013")},  // On / Off
    {"AinfState.1",                          bit("tmizta_075", "tmizta_074")},  // Inside / Outside
    {"AinfState.2",                          bit("tmizta_077", "tmizta_076")},  // At a stop / Between stops
    {"AinfState.3..4",                       bit("wrd_004", "tmizta_078")},     // Error / Normal
    {"AinfState.5",                          bit("tmizta_026", "wrd_002")},     // Present / No
    {"AinfState.6",                          bit("tmizta_080", "tmizta_079")},  // Automatic / Manual
    {"AinfGeozoneID AinfStopID AinfRouteID", {.none = "wrd_002"}},              // No
    {"CameraState.0",                        bit("tmizta_082", "tmizta_081")},  // Connected / Not connected
    {"CameraState.1",                        bit("tmizta_084", "tmizta_083")},  // Running / Not running
    {"CameraState.2",                        bit("tmizta_086", "tmizta_085")},  // Running / Not running
    {"CameraState.3",                        bit("wrd_004", "tmizta_078")},     // Error / Normal

    // Fuel flow sensor
    {"FfsState.supply", named(kFlowMode, {0, 4})},
    {"FfsState.return", named(kFlowMode, {4, 4})},
    {"FfsState.engine", named(kFlowMode, {8, 4})},
    {"FfsState.power",  {.bits = {12, 2}}},
    {"FfsError",        kPlain},
    {"FfsFuel FfsFuelTrip FfsSubmisVolume FfsReversVolume FfsSpeed FfsSubmisSpeed FfsSubmisTemp "
     "FfsReversSpeed "
     "FfsReversTemp",
     {.shape = General}},

    // Refrigerator
    {"RefrState1.0",                                           bit("tmizta_099", "tmizta_087")},                 // Running / Inactive
    {"RefrState1.1",                                           bit("tmizta_101", "tmizta_100")},                 // Continuous / Start-stop
    {"RefrState1.vendor",                                      named(kRefrigeratorVendor, {2, 3})},
    {"RefrState2",                                             named(kRefrigeratorMode)},
    {"RefrState2.vendor",                                      namedOr("tmizta_073", kRefrigeratorVendorMode)},  // No data
    {"RefrTemp1..3 RefrSetTemp1..3 RefrTempAir RefrTempWater", {.shape = General, .withUnit = true}},
    {"RefrTension RefrIntensity",                              kWithUnit},
    {"RefrPowerEngine RefrPowerNetwork",                       {.shape = Fixed, .decimals = 2, .cut = true, .withUnit = true}},
    {"RefrErrorCount RefrErrorCode1..6",                       kPlain},
    {"RefrEngineMode",                                         named(kRefrigeratorEngine)},
    {"RefrEngineTurns",                                        kWithUnit},
    {"RefrCompressor",                                         named(kCompressor)},
    {"RefrCompressor.vendor",                                  named(kCompressorVendor)},

    // User parameters, in the order of their type letters
    {"User1Byte_1..16 User2Byte_1..15 User4Byte_1..15 User8Byte_1..3", {.shape = UserParameter}},
};
// clang-format on

} // namespace vlk::items
