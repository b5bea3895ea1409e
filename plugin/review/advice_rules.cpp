#include "review/advice_rules.h"

#include "catalogue/field_catalogue.h"
#include "review/advice_paths.h"
#include "review/settable.h"
#include "settings/bluetooth_sensor_types.h"
#include "settings/rs_settings.h"
#include "settings/shared_rows.h"
#include "settings/transfer_settings.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vlk::review::advice {

namespace {

using enum Severity;

constexpr int kServers = 3;
constexpr int kLines = 3;
constexpr int kTemperatures = 4;
constexpr int kShockSensors = 4;
constexpr int kTimeServers = 4;

// From here on a record has little room left.
constexpr int kCloseRecordBytes = kMostRecordBytes * 9 / 10;

// Periods that are read without their whole days, and the longest one that stays.
constexpr int kDay = 24 * 60 * 60;
constexpr const char* kLongestOfDay = "86340";

constexpr int levelField(int sensor)
{
    constexpr int few = 6; // in a group of their own; the others have level and temperature in one field
    return sensor <= few ? field("LevelRS485_1") + sensor - 1 : field("LevelRS485_7") + sensor - few - 1;
}
constexpr int temperatureField(int sensor)
{
    return field("Temp1") + sensor - 1;
}
constexpr int preciseField(int sensor)
{
    return field("HPrecisionTemp1") + sensor - 1;
}

constexpr const char* kNoAddress = "|0.0.0.0";

constexpr auto kServerRules = rulesOf(
    // A further one is not in use then.
    rule("server_empty", hint, "adv_001")
        .each(1)
        .when(isOn("TRANS/SRV%1/use"), is("TRANS/SRV%1/addr", kNoAddress), is("TRANS/SRV%1/port", "0"))
        .naming("TRANS/SRV%1/addr", "TRANS/SRV%1/port")
        .telling(outerNumber()),
    rule("server_address", error, "adv_002")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), is("TRANS/SRV%1/addr", kNoAddress), isNot("TRANS/SRV%1/port", "0"))
        .naming("TRANS/SRV%1/addr")
        .telling(outerNumber()),
    rule("server_port", error, "adv_003")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), isNot("TRANS/SRV%1/addr", kNoAddress), is("TRANS/SRV%1/port", "0"))
        .naming("TRANS/SRV%1/port")
        .telling(outerNumber()),
    rule("server_port_large", error, "adv_065")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), notBelow("TRANS/SRV%1/port", kHighestPort + 1))
        .naming("TRANS/SRV%1/port")
        .telling(outerNumber(), valueOf("TRANS/SRV%1/port")),
    rule("server_address_form", error, "adv_004")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), unlike("TRANS/SRV%1/addr", shared::kHostPattern))
        .naming("TRANS/SRV%1/addr")
        .telling(outerNumber(), valueOf("TRANS/SRV%1/addr")),
    rule("servers_same", warning, "adv_005")
        .eachPair(kServers)
        .when(isOn("TRANS/SRV%1/use"), isOn("TRANS/SRV%2/use"), isNot("TRANS/SRV%1/addr", kNoAddress),
              same("TRANS/SRV%1/addr", "TRANS/SRV%2/addr"), same("TRANS/SRV%1/port", "TRANS/SRV%2/port"))
        .naming("TRANS/SRV%2/addr", "TRANS/SRV%1/addr", "TRANS/SRV%2/port", "TRANS/SRV%1/port")
        .telling(outerNumber(), innerNumber(), valueOf("TRANS/SRV%1/addr"), valueOf("TRANS/SRV%1/port")),
    rule("server_none", hint, "adv_066")
        .when(every(kServers, isOff("TRANS/SRV%2/use")))
        .naming("TRANS/SRV1/use"),
    rule("server_main", hint, "adv_006")
        .when(isOff("TRANS/SRV1/use"))
        .whenAny(isOn("TRANS/SRV2/use"), isOn("TRANS/SRV3/use"))
        .naming("TRANS/SRV1/use"),
    rule("server_object", warning, "adv_007")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), is("TRANS/SRV%1/protocol", "EGTS|EGTSAUTH"),
              is("TRANS/SRV%1/objID", "0"))
        .naming("TRANS/SRV%1/objID", "TRANS/SRV%1/protocol")
        .telling(outerNumber(), valueOf("TRANS/SRV%1/protocol")));

// A protocol as the quick window calls it in the file, and as the Transfer page does under another key.
struct ProtocolNames
{
    const char* quick;
    const char* page;
};
constexpr ProtocolNames kProtocols[] = {{"R-7044", "K5.2"},        {"R-7280", "K6"},      {"EGTS", "EGTS"},
                                        {"EGTS_AUTH", "EGTSAUTH"}, {"VLKB_ZETA", "ZETA"}, {"UNDS", "UNDS"}};

constexpr auto kProtocolRules = [] {
    std::array<Rule, std::size(kProtocols)> rules;
    std::ranges::transform(kProtocols, rules.begin(), [](const ProtocolNames& protocol) {
        return rule("quick_protocol", warning, "adv_008")
            .when(isOn("TRANS/SRV1/use"), isNot("TRANS/SRV1/protocol", protocol.page),
                  isUnread("TRANS/SRV1/format", protocol.quick))
            .naming("TRANS/SRV1/protocol")
            .telling(unreadAt("TRANS/SRV1/format"), valueOf("TRANS/SRV1/protocol"))
            .mending("TRANS/SRV1/protocol", protocol.page);
    });
    return rules;
}();

constexpr Rule cutPeriod(const char* id, const char* path)
{
    return rule(id, warning, "adv_013")
        .when(notBelow(path, kDay))
        .naming(path)
        .telling(captionOf(path), valueOf(path))
        .mending(path, kLongestOfDay);
}

constexpr auto kTransferRules = rulesOf(
    kServerRules, kProtocolRules,
    rule("crypto_no_key", error, "adv_009")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), isOn("TRANS/CRYPTO/srv%1Mode"), is("TRANS/CRYPTO/key", ""))
        .naming("TRANS/CRYPTO/key", "TRANS/CRYPTO/srv%1Mode")
        .telling(outerNumber()),
    rule("crypto_key_form", error, "adv_010")
        .when(isNot("TRANS/CRYPTO/key", ""), unlike("TRANS/CRYPTO/key", "^[0-9A-Fa-f]{32}$"),
              some(kServers, isOn("TRANS/CRYPTO/srv%2Mode")))
        .naming("TRANS/CRYPTO/key"),
    rule("crypto_unused", hint, "adv_067")
        .when(isNot("TRANS/CRYPTO/key", ""), every(kServers, isOff("TRANS/CRYPTO/srv%2Mode")))
        .naming("TRANS/CRYPTO/srv1Mode", "TRANS/CRYPTO/key"),
    rule("pin_short", error, "adv_011").when(like("TRANS/AP1/pin", "^.{1,3}$")).naming("TRANS/AP1/pin"),
    rule("access_point_name", warning, "adv_012")
        .when(is("TRANS/AP1/name", ""))
        .whenAny(isNot("TRANS/AP1/login", ""), isNot("TRANS/AP1/pass", ""))
        .naming("TRANS/AP1/name", "TRANS/AP1/login", "TRANS/AP1/pass"),
    rule("roaming_no_operator", warning, "adv_068")
        .when(isNot("TRANS/ROAMSIM1/mode", "0"), isOn("TRANS/ROAMSIM1/dontCnct"),
              every(kRoamingRows, isOff("TRANS/ROAMSIM1/opCode%2")))
        .naming("TRANS/ROAMSIM1/opCode1", "TRANS/ROAMSIM1/dontCnct"),
    cutPeriod("connection_period_cut", "TRANS/RULES/cnctTimer"),
    cutPeriod("failure_pause_cut", "TRANS/RULES/blockTimer"),
    rule("connection_period_zero", error, "adv_014")
        .when(isOff("TRANS/RULES/cnctType"), is("TRANS/RULES/cnctTimer", "0"))
        .naming("TRANS/RULES/cnctTimer", "TRANS/RULES/cnctType"));

constexpr auto kRecordRules = rulesOf(rule("record_format", hint, "adv_015")
                                          .when(isNot(kFormatPath, kWholeFormat))
                                          .naming(kFormatPath)
                                          .telling(valueOf(kFormatPath))
                                          .mending(kFormatPath, kWholeFormat),
                                      rule("record_nearly_full", hint, "adv_016")
                                          .when(recordAbove(kCloseRecordBytes))
                                          .naming(kMaskPath)
                                          .telling(recordBytes(), mostBytes()),
                                      rule("record_no_coordinates", warning, "adv_017")
                                          .when(lacks(at<field("Latitude")>))
                                          .naming(kMaskPath)
                                          .ticking(at<field("Latitude")>));

// Signals that motion, averaging and fuel readings can follow, by their positions there.
constexpr Position kIgnition = at<0>;
constexpr Position kEngine = at<1>;
constexpr Position kTachometer = at<2>;

constexpr const char* kUnused = "NU|N/A"; // of a line
constexpr Condition kNoIgnition = every(kLines, isOff("SENSORS/IN%2/ign"));
constexpr Condition kNoSupplyLine = isOff("SYSTEM/PWRSENS/line");

// The mend is what a new configuration has: line 1 is the ignition, in its own use if it has one.
constexpr auto withoutIgnition(const char* id, const char* path, auto... conditions)
{
    constexpr const char* use = "SENSORS/IN1/normState";
    constexpr const char* ignition = "SENSORS/IN1/IN1ADIN/ign";
    const Rule told = rule(id, warning, "adv_044").naming(path, "SENSORS/IN1/ign").telling(captionOf(path));
    return rulesOf(
        told.when(conditions..., kNoIgnition, isNot(use, kUnused)).mending(ignition, "1"),
        told.when(conditions..., kNoIgnition, is(use, kUnused)).mending(use, "NB+").mending(ignition, "1"));
}

// A point is asked for more often than a pause lets it come.
constexpr Rule pausedPoints(const char* id, const char* use, const char* path, const char* limitUse,
                            const char* limit)
{
    return rule(id, warning, "adv_058")
        .when(isOn(use), isOn(path), isOn(limitUse), below(path, limit))
        .naming(limit, path)
        .telling(valueOf(path), valueOf(limit));
}

// A limit of coordinates that hardly any of them keeps.
constexpr Rule strictFilter(const char* id, const char* path, Condition condition)
{
    return rule(id, hint, "adv_061")
        .when(isOn("TRACK/COORDFLT/use"), condition)
        .naming(path)
        .telling(captionOf(path), valueOf(path));
}

constexpr auto kTrackRules = rulesOf(
    rule("track_no_points", warning, "adv_057")
        .when(isOff("TRACK/POINTS/angleMode"), isOff("TRACK/POINTS/useDist"), isOff("TRACK/POINTS/useTimer"))
        .naming("TRACK/POINTS/angleMode", "TRACK/POINTS/useDist", "TRACK/POINTS/useTimer"),
    pausedPoints("track_distance_paused", "TRACK/POINTS/useDist", "TRACK/POINTS/dist",
                 "TRACK/LIMPOINT/blockDist", "TRACK/LIMPOINT/dist"),
    pausedPoints("track_period_paused", "TRACK/POINTS/useTimer", "TRACK/POINTS/moveTimer",
                 "TRACK/LIMPOINT/blockTimer", "TRACK/LIMPOINT/timer"),
    rule("overspeed_rejected", warning, "adv_059")
        .when(isOn("TRACK/POINTS/useMaxSpeed"), isOn("TRACK/COORDFLT/use"),
              notBelow("TRACK/POINTS/maxSpeed", "TRACK/COORDFLT/maxSpeed"))
        .naming("TRACK/COORDFLT/maxSpeed", "TRACK/POINTS/maxSpeed")
        .telling(valueOf("TRACK/COORDFLT/maxSpeed"), valueOf("TRACK/POINTS/maxSpeed")),
    withoutIgnition("motion_ignition", "TRACK/POINTS/moveTimerSens", isOn("TRACK/POINTS/useTimer"),
                    digitOn("TRACK/POINTS/moveTimerSens", kIgnition)),
    rule("motion_engine", warning, "adv_045")
        .when(isOn("TRACK/POINTS/useTimer"), digitOn("TRACK/POINTS/moveTimerSens", kEngine), kNoSupplyLine)
        .naming("SYSTEM/PWRSENS/line", "TRACK/POINTS/moveTimerSens"),
    rule("motion_tachometer", warning, "adv_046")
        .when(isOn("TRACK/POINTS/useTimer"), digitOn("TRACK/POINTS/moveTimerSens", kTachometer),
              every(kLines, isNot("SENSORS/IN%2/normState", "TAHO")))
        .naming("TRACK/POINTS/moveTimerSens"),
    withoutIgnition("stop_ignition", "TRACK/COORDAVER/sensors", isOn("TRACK/COORDFLT/use"),
                    isOn("TRACK/COORDAVER/mode"), digitOn("TRACK/COORDAVER/sensors", kIgnition),
                    like("TRACK/COORDAVER/sensors", "^.0")),
    rule("motion_sensor", warning, "adv_056")
        .when(isOn("TRACK/POINTS/useMoveSens"), is("ACCEL/SENSORS/sh3", "0.0"))
        .naming("ACCEL/SENSORS/sh3", "TRACK/POINTS/useMoveSens"),
    rule("elevation_mask", hint, "adv_060")
        .when(notBelow("TRACK/GNSS/angle", 31))
        .naming("TRACK/GNSS/angle")
        .telling(valueOf("TRACK/GNSS/angle")),
    strictFilter("filter_satellites", "TRACK/COORDFLT/minSats", notBelow("TRACK/COORDFLT/minSats", 13)),
    strictFilter("filter_hdop", "TRACK/COORDFLT/maxHDOP", below("TRACK/COORDFLT/maxHDOP", 0.8)));

// A threshold at an end of its range, so that what waits for it never comes.
constexpr Rule never(const char* id, Severity severity, const char* text, const char* path)
{
    return rule(id, severity, text).naming(path).telling(captionOf(path), valueOf(path));
}

constexpr Condition kFuelBySupply = digitOn("SYSTEM/FUEL/sensors", at<2>);

constexpr auto kSystemRules = rulesOf(
    withoutIgnition("fuel_ignition", "SYSTEM/FUEL/sensors", digitOn("SYSTEM/FUEL/sensors", kIgnition)),
    never("fuel_never_off", warning, "adv_037", "SYSTEM/FUEL/blockVolt")
        .when(kFuelBySupply, is("SYSTEM/FUEL/blockVolt", "0")),
    never("fuel_never_on", error, "adv_038", "SYSTEM/FUEL/unblockVolt")
        .when(kFuelBySupply, notBelow("SYSTEM/FUEL/unblockVolt", 31000)),
    never("supply_never_restores", warning, "adv_039", "SYSTEM/PWRSENS/restoreLvl")
        .when(isOn("SYSTEM/PWRSENS/line"), notBelow("SYSTEM/PWRSENS/restoreLvl", 32000)),
    never("engine_never_runs", warning, "adv_040", "SYSTEM/ENGSENS/voltageLvl")
        .when(isOn("SYSTEM/PWRSENS/line"), isOn("SYSTEM/ENGSENS/useCustom"),
              notBelow("SYSTEM/ENGSENS/voltageLvl", 32000)),
    rule("engine_below_alarm", warning, "adv_047")
        .when(isOn("SYSTEM/PWRSENS/line"), isOn("SYSTEM/ENGSENS/useCustom"),
              notBelow("SYSTEM/PWRSENS/alarmLvl", "SYSTEM/ENGSENS/voltageLvl"))
        .naming("SYSTEM/ENGSENS/voltageLvl", "SYSTEM/PWRSENS/alarmLvl")
        .telling(valueOf("SYSTEM/ENGSENS/voltageLvl"), valueOf("SYSTEM/PWRSENS/alarmLvl")),
    rule("ntp_no_server", warning, "adv_062")
        .when(isOn("SYSTEM/NTP/use"), every(kTimeServers, is("SYSTEM/NTP/ntpSrv%2", "")))
        .naming("SYSTEM/NTP/ntpSrv1", "SYSTEM/NTP/use"),
    rule("ntp_server_form", warning, "adv_064")
        .each(kTimeServers)
        .when(isOn("SYSTEM/NTP/use"), unlike("SYSTEM/NTP/ntpSrv%1", shared::kHostPattern))
        .naming("SYSTEM/NTP/ntpSrv%1")
        .telling(captionOf("SYSTEM/NTP/ntpSrv%1"), valueOf("SYSTEM/NTP/ntpSrv%1")),
    rule("ntp_periods", hint, "adv_063")
        .when(isOn("SYSTEM/NTP/use"), below("SYSTEM/NTP/usualPeriod", "SYSTEM/NTP/faultPeriod"))
        .naming("SYSTEM/NTP/faultPeriod", "SYSTEM/NTP/usualPeriod")
        .telling(valueOf("SYSTEM/NTP/faultPeriod"), valueOf("SYSTEM/NTP/usualPeriod")));

constexpr const char* kOwner = "RS485/OPTIONS/owner1";
constexpr Condition kFuelOnLine = is(kOwner, "FLDS");
constexpr Condition kCountersOnLine = is(kOwner, "PCNT");

constexpr auto kRsRules =
    rulesOf(rule("fuel_field", warning, "adv_018")
                .each(kRsFuelSensors)
                .when(kFuelOnLine, isOn("RS485/FS%1/use"), lacks(levelField))
                .naming(kMaskPath, "RS485/FS%1/use")
                .telling(outerNumber(), boxOf(levelField))
                .ticking(levelField),
            rule("fuel_addresses", error, "adv_019")
                .eachPair(kRsFuelSensors)
                .when(kFuelOnLine, isOn("RS485/FS%1/use"), isOn("RS485/FS%2/use"),
                      same("RS485/FS%1/address", "RS485/FS%2/address"))
                .naming("RS485/FS%2/address", "RS485/FS%1/address")
                .telling(outerNumber(), innerNumber(), valueOf("RS485/FS%1/address")),
            rule("fuel_none", warning, "adv_020")
                .when(kFuelOnLine, every(kRsFuelSensors, isOff("RS485/FS%2/use")))
                .naming("RS485/FS1/use", kOwner),
            rule("counters_none", warning, "adv_021")
                .when(kCountersOnLine, every(kRsCounters, isOff("RS485/PCNT/id%2")))
                .naming("RS485/PCNT/id1", kOwner),
            rule("counter_addresses", error, "adv_022")
                .eachPair(kRsCounters)
                .when(kCountersOnLine, isOn("RS485/PCNT/id%1"), same("RS485/PCNT/id%1", "RS485/PCNT/id%2"))
                .naming("RS485/PCNT/id%2", "RS485/PCNT/id%1")
                .telling(outerNumber(), innerNumber(), valueOf("RS485/PCNT/id%1")),
            rule("display_silent", hint, "adv_023")
                .when(is(kOwner, "DDU"), isOff("RS485/DV01/Use"))
                .naming("RS485/DV01/Use")
                .mending("RS485/DV01/Use", "1"));

constexpr const char* kColdest = "-50.0";
constexpr const char* kHottest = "120.0";
constexpr const char* kDiscrete = "NS-|NB-|NS+|NB+";

// A use of the third line that waits for one of its two thresholds.
constexpr auto lineNever(const char* use, const char* trigger, Condition neverTriggers, const char* restore,
                         Condition neverRestores)
{
    const Condition used = is("SENSORS/IN3/normState", use);
    return rulesOf(never("line_never_triggers", error, "adv_035", trigger).when(used, neverTriggers),
                   never("line_never_restores", warning, "adv_036", restore)
                       .when(used, isOn("SENSORS/IN3/cntlRestore"), neverRestores));
}
constexpr const char* kLowLevel = "SENSORS/IN3/IN3ADIN/lowLvl";
constexpr const char* kHighLevel = "SENSORS/IN3/IN3ADIN/highLvl";
constexpr Condition kNothingBelow = is(kLowLevel, "0");
constexpr Condition kNothingAbove = notBelow(kHighLevel, 31000);

constexpr auto kInputRules =
    rulesOf(rule("temperature_field", warning, "adv_033")
                .each(kTemperatures)
                .when(lacks(temperatureField), lacks(preciseField))
                .whenAny(isNot("TEMPSENS/SENS%1/min", kColdest), isNot("TEMPSENS/SENS%1/max", kHottest))
                .naming(kMaskPath, "TEMPSENS/SENS%1/min", "TEMPSENS/SENS%1/max")
                .telling(outerNumber(), boxOf(temperatureField))
                .ticking(temperatureField),
            rule("input_field", warning, "adv_031")
                .when(some(kLines, is("SENSORS/IN%2/normState", kDiscrete)), lacks(at<field("StateIn1")>))
                .naming(kMaskPath)
                .telling(boxOf(at<field("StateIn1")>))
                .ticking(at<field("StateIn1")>),
            rule("analogue_field", warning, "adv_032")
                .when(is("SENSORS/IN3/normState", "AIN"), lacks(at<field("StateU_Ain3")>))
                .naming(kMaskPath, "SENSORS/IN3/normState")
                .telling(boxOf(at<field("StateU_Ain3")>))
                .ticking(at<field("StateU_Ain3")>),
            lineNever("NB+", kHighLevel, kNothingAbove, kLowLevel, kNothingBelow),
            lineNever("NS+", kLowLevel, kNothingBelow, kHighLevel, kNothingAbove),
            rule("line_names", hint, "adv_041")
                .eachPair(kLines)
                .when(isNot("SENSORS/IN%1/normState", kUnused), isNot("SENSORS/IN%2/normState", kUnused),
                      isNot("SENSORS/IN%1/name", ""), same("SENSORS/IN%1/name", "SENSORS/IN%2/name"))
                .naming("SENSORS/IN%2/name", "SENSORS/IN%1/name")
                .telling(outerNumber(), innerNumber(), valueOf("SENSORS/IN%1/name")),
            rule("line_and_output_name", hint, "adv_042")
                .each(kLines)
                .when(isNot("SENSORS/IN%1/normState", kUnused), isNot("SENSORS/IN%1/name", ""),
                      same("SENSORS/IN%1/name", "OUTPUTS/LINE1/nickname"))
                .naming("OUTPUTS/LINE1/nickname", "SENSORS/IN%1/name")
                .telling(outerNumber(), valueOf("SENSORS/IN%1/name")),
            rule("supply_line_taken", warning, "adv_043")
                .when(isOn("SYSTEM/PWRSENS/line"), is("SENSORS/IN3/normState", kDiscrete))
                .naming("SENSORS/IN3/normState", "SYSTEM/PWRSENS/line")
                .mending("SENSORS/IN3/normState", "AIN"));

constexpr const char* kActions = "OUTPUTS/LINE1/actions";
constexpr const char* kForm = "OUTPUTS/LINE1/signalForm";
constexpr const char* kNoLevel = "0.0|0.00";
constexpr Condition kSwitched = is("OUTPUTS/LINE1/mode", "GP");

constexpr int lineAction(int line)
{
    return line - 1;
}
constexpr int shockAction(int sensor)
{
    return 4 + sensor;
}

constexpr Rule byTemperature(const char* id, Position action, auto... noBounds)
{
    return rule(id, warning, "adv_053")
        .when(kSwitched, digitOn(kActions, action), noBounds...)
        .naming("TEMPSENS/SENS1/min", kActions);
}
constexpr Condition kNoLowBound = every(kTemperatures, is("TEMPSENS/SENS%2/min", kColdest));
constexpr Condition kNoHighBound = every(kTemperatures, is("TEMPSENS/SENS%2/max", kHottest));

// A form of the signal that asks for a time.
constexpr Rule timeless(const char* id, const char* forms, const char* path)
{
    return rule(id, error, "adv_050")
        .when(kSwitched, is(kForm, forms), is(path, "0"))
        .naming(path, kForm)
        .telling(valueOf(kForm), captionOf(path), valueOf(path));
}

constexpr auto kOutputRules = rulesOf(
    rule("shock_levels", hint, "adv_055")
        .when(isNot("ACCEL/SENSORS/sh2", kNoLevel), notBelow("ACCEL/SENSORS/sh1", "ACCEL/SENSORS/sh2"))
        .naming("ACCEL/SENSORS/sh1", "ACCEL/SENSORS/sh2")
        .telling(valueOf("ACCEL/SENSORS/sh1"), valueOf("ACCEL/SENSORS/sh2")),
    rule("output_unsafe", warning, "adv_048")
        .when(kSwitched, like(kActions, "1"), isOff("OUTPUTS/LINE1/safeBlock"))
        .naming("OUTPUTS/LINE1/safeBlock", kActions)
        .mending("OUTPUTS/LINE1/safeBlock", "1"),
    rule("output_idle", hint, "adv_049")
        .when(kSwitched, unlike(kActions, "[12]"))
        .whenAny(isOn(kForm), isOn("OUTPUTS/LINE1/onPeriod"), isOn("OUTPUTS/LINE1/offPeriod"),
                 isOn("OUTPUTS/LINE1/autoOffDelay"))
        .naming(kActions, kForm),
    timeless("output_time_on", "1|2", "OUTPUTS/LINE1/onPeriod"),
    timeless("output_time_off", "2", "OUTPUTS/LINE1/offPeriod"),
    rule("output_off_delay", error, "adv_050")
        .when(kSwitched, is(kForm, "2"), isOn("OUTPUTS/LINE1/autoOff"), is("OUTPUTS/LINE1/autoOffDelay", "0"))
        .naming("OUTPUTS/LINE1/autoOffDelay", "OUTPUTS/LINE1/autoOff")
        .telling(valueOf(kForm), captionOf("OUTPUTS/LINE1/autoOffDelay"),
                 valueOf("OUTPUTS/LINE1/autoOffDelay")),
    rule("output_field", hint, "adv_034")
        .when(kSwitched, like(kActions, "[12]"), lacks(at<field("StateOut1")>))
        .naming(kMaskPath, kActions)
        .telling(boxOf(at<field("StateOut1")>))
        .ticking(at<field("StateOut1")>),
    rule("output_by_line", warning, "adv_051")
        .each(kLines)
        .when(kSwitched, digitOn(kActions, lineAction), is("SENSORS/IN%1/normState", kUnused))
        .naming(kActions, "SENSORS/IN%1/normState")
        .telling(outerNumber()),
    rule("output_by_shock", warning, "adv_054")
        .each(kShockSensors)
        .when(kSwitched, digitOn(kActions, shockAction), is("ACCEL/SENSORS/sh%1", kNoLevel))
        .naming("ACCEL/SENSORS/sh%1", kActions)
        .telling(outerNumber()),
    rule("output_by_supply", warning, "adv_052")
        .when(kSwitched, kNoSupplyLine)
        .whenAny(digitOn(kActions, at<9>), digitOn(kActions, at<10>), digitOn(kActions, at<14>),
                 digitOn(kActions, at<15>))
        .naming("SYSTEM/PWRSENS/line", kActions),
    byTemperature("output_by_cold", at<11>, kNoLowBound),
    byTemperature("output_by_heat", at<12>, kNoHighBound),
    byTemperature("output_by_normal", at<13>, kNoLowBound, kNoHighBound));

constexpr Condition kBluetoothOn = isOn("BLUETOOTH/GLOBAL/use");
constexpr const char* kWholeAddress = "^(?:[0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}$";

// A sensor of the type `type`, whose value takes the second number, at `index`.
constexpr Rule sentAs(const char* id, std::uint8_t numbers, const char* type, const char* index,
                      Position tick, auto... lacking)
{
    return rule(id, warning, "adv_025")
        .each(kBluetoothSensors, numbers)
        .when(kBluetoothOn, is("BLUETOOTH/SENS%1/type", type), isNumbered(index), lacking...)
        .naming(kMaskPath, index)
        .telling(outerNumber(), boxOf(tick))
        .ticking(tick);
}

// A type of sensor of which the tracker finds some models by their names.
template <std::size_t i>
struct NamedSensors
{
    static constexpr const BluetoothSensorType& type = kBluetoothSensorTypes[i];
    static constexpr bool any =
        std::ranges::any_of(type.vendors, [](const BluetoothVendor& model) { return model.needsName; });
    // "BLUETOOTH/FS%1/type"
    static constexpr auto model = [] {
        std::array<char, 32> path{};
        auto end = path.begin();
        for (const std::string_view part : {"BLUETOOTH/", type.section, "/type"})
            end = std::copy(part.begin(), part.end(), end);
        return path;
    }();
    // "0|4"
    static constexpr auto codes = [] {
        std::array<char, 32> list{};
        auto end = list.begin();
        for (std::size_t code = 0; code < type.vendors.size(); ++code) {
            if (!type.vendors[code].needsName)
                continue;
            if (end != list.begin())
                *end++ = '|';
            *end++ = static_cast<char>('0' + code);
        }
        return list;
    }();
};

template <std::size_t i>
constexpr auto nameless()
{
    using Sensors = NamedSensors<i>;
    std::array<Rule, Sensors::any> rules;
    std::ranges::fill(rules, rule("bluetooth_name", hint, "adv_030")
                                 .each(kBluetoothSensors)
                                 .when(kBluetoothOn, is("BLUETOOTH/SENS%1/type", Sensors::type.code),
                                       is(Sensors::model.data(), Sensors::codes.data()),
                                       is("BLUETOOTH/SENS%1/name", ""))
                                 .naming("BLUETOOTH/SENS%1/name", Sensors::model.data())
                                 .telling(outerNumber(), valueOf(Sensors::model.data())));
    return rules;
}

constexpr auto kNameRules = []<std::size_t... types>(std::index_sequence<types...>)
{
    return rulesOf(nameless<types>()...);
}
(std::make_index_sequence<std::size(kBluetoothSensorTypes)>());

constexpr auto kBluetoothRules = rulesOf(
    sentAs("bluetooth_fuel_field", kRsFuelSensors, "1", "BLUETOOTH/FS%1/idx", levelField, lacks(levelField)),
    sentAs("bluetooth_temperature_field", kTemperatures, "2", "BLUETOOTH/TS%1/idx", preciseField,
           lacks(preciseField), lacks(temperatureField)),
    sentAs("bluetooth_combined_field", kTemperatures, "7", "BLUETOOTH/US%1 TS%1/idx", temperatureField,
           lacks(preciseField), lacks(temperatureField)),
    rule("fuel_numbers", error, "adv_024")
        .each(kBluetoothSensors, kRsFuelSensors)
        .when(kBluetoothOn, is("BLUETOOTH/SENS%1/type", "1"), isNumbered("BLUETOOTH/FS%1/idx"), kFuelOnLine,
              isOn("RS485/FS%2/use"))
        .naming("BLUETOOTH/FS%1/idx", "RS485/FS%2/use")
        .telling(outerNumber(), innerNumber())
        .freeing("BLUETOOTH/FS%1/idx", "RS485/FS%2/use"),
    rule("bluetooth_address", error, "adv_026")
        .each(kBluetoothSensors)
        .when(kBluetoothOn, isOn("BLUETOOTH/SENS%1/type"), unlike("BLUETOOTH/SENS%1/macaddr", kWholeAddress))
        .naming("BLUETOOTH/SENS%1/macaddr")
        .telling(outerNumber()),
    rule("bluetooth_addresses", error, "adv_027")
        .eachPair(kBluetoothSensors)
        .when(kBluetoothOn, isOn("BLUETOOTH/SENS%1/type"), isOn("BLUETOOTH/SENS%2/type"),
              same("BLUETOOTH/SENS%1/macaddr", "BLUETOOTH/SENS%2/macaddr"),
              like("BLUETOOTH/SENS%1/macaddr", kWholeAddress))
        .naming("BLUETOOTH/SENS%2/macaddr", "BLUETOOTH/SENS%1/macaddr")
        .telling(outerNumber(), innerNumber(), valueOf("BLUETOOTH/SENS%1/macaddr")),
    rule("bluetooth_type", warning, "adv_028")
        .each(kBluetoothSensors)
        .when(kBluetoothOn, isOff("BLUETOOTH/SENS%1/type"), isNot("BLUETOOTH/SENS%1/macaddr", "|:::::"))
        .naming("BLUETOOTH/SENS%1/type", "BLUETOOTH/SENS%1/macaddr")
        .telling(outerNumber()),
    rule("bluetooth_off", warning, "adv_029")
        .when(isOff("BLUETOOTH/GLOBAL/use"), some(kBluetoothSensors, isOn("BLUETOOTH/SENS%2/type")))
        .naming("BLUETOOTH/GLOBAL/use")
        .mending("BLUETOOTH/GLOBAL/use", "1"),
    kNameRules);

constexpr auto kAll = rulesOf(kTransferRules, kRecordRules, kTrackRules, kSystemRules, kRsRules, kInputRules,
                              kOutputRules, kBluetoothRules);
static_assert(arePathsKnown<kAll>);
static_assert(isKnown(kMaskPath, {}) && isKnown(kFormatPath, {}));

} // namespace

constexpr std::span<const Rule> kRules = kAll;

} // namespace vlk::review::advice
