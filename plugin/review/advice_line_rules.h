#pragma once

// Rules of advice: temperatures, input and output lines.

#include "review/advice_rule_parts.h"
#include "review/advice_rules.h"

namespace vlk::review::advice {

inline constexpr int kShockSensors = 4;
inline constexpr const char* kDiscrete = "NS-|NB-|NS+|NB+";
inline constexpr const char* kColdest = "-50.0";
inline constexpr const char* kHottest = "120.0";

// A use of the third line that waits for one of its two thresholds.
constexpr auto lineNever(const char* use, const char* trigger, Condition neverTriggers, const char* restore,
                         Condition neverRestores)
{
    const Condition used = is("SENSORS/IN3/normState", use);
    return rulesOf(never("line_never_triggers", Error, "adv_035", trigger).when(used, neverTriggers),
                   never("line_never_restores", Warning, "adv_036", restore)
                       .when(used, isOn("SENSORS/IN3/cntlRestore"), neverRestores));
}
inline constexpr const char* kLowLevel = "SENSORS/IN3/IN3ADIN/lowLvl";
inline constexpr const char* kHighLevel = "SENSORS/IN3/IN3ADIN/highLvl";
inline constexpr Condition kNothingBelow = is(kLowLevel, "0");
inline constexpr Condition kNothingAbove = notBelow(kHighLevel, 31000);

inline constexpr auto kInputRules =
    rulesOf(rule("temperature_field", Warning, "adv_033")
                .each(kTemperatures)
                .when(lacks(temperatureField), lacks(preciseField))
                .whenAny(isNot("TEMPSENS/SENS%1/min", kColdest), isNot("TEMPSENS/SENS%1/max", kHottest))
                .naming(kMaskPath, "TEMPSENS/SENS%1/min", "TEMPSENS/SENS%1/max")
                .telling(outerNumber(), boxOf(temperatureField))
                .ticking(temperatureField),
            rule("input_field", Warning, "adv_031")
                .when(some(kLines, is("SENSORS/IN%2/normState", kDiscrete)), lacks(at<field("StateIn1")>))
                .naming(kMaskPath)
                .telling(boxOf(at<field("StateIn1")>))
                .ticking(at<field("StateIn1")>),
            rule("analogue_field", Warning, "adv_032")
                .when(is("SENSORS/IN3/normState", "AIN"), lacks(at<field("StateU_Ain3")>))
                .naming(kMaskPath, "SENSORS/IN3/normState")
                .telling(boxOf(at<field("StateU_Ain3")>))
                .ticking(at<field("StateU_Ain3")>),
            lineNever("NB+", kHighLevel, kNothingAbove, kLowLevel, kNothingBelow),
            lineNever("NS+", kLowLevel, kNothingBelow, kHighLevel, kNothingAbove),
            rule("line_names", Hint, "adv_041")
                .eachPair(kLines)
                .when(isNot("SENSORS/IN%1/normState", kUnused), isNot("SENSORS/IN%2/normState", kUnused),
                      isNot("SENSORS/IN%1/name", ""), same("SENSORS/IN%1/name", "SENSORS/IN%2/name"))
                .naming("SENSORS/IN%2/name", "SENSORS/IN%1/name")
                .telling(outerNumber(), innerNumber(), valueOf("SENSORS/IN%1/name")),
            rule("line_and_output_name", Hint, "adv_042")
                .each(kLines)
                .when(isNot("SENSORS/IN%1/normState", kUnused), isNot("SENSORS/IN%1/name", ""),
                      same("SENSORS/IN%1/name", "OUTPUTS/LINE1/nickname"))
                .naming("OUTPUTS/LINE1/nickname", "SENSORS/IN%1/name")
                .telling(outerNumber(), valueOf("SENSORS/IN%1/name")),
            rule("supply_line_taken", Warning, "adv_043")
                .when(isOn("SYSTEM/PWRSENS/line"), is("SENSORS/IN3/normState", kDiscrete))
                .naming("SENSORS/IN3/normState", "SYSTEM/PWRSENS/line")
                .mending("SENSORS/IN3/normState", "AIN"));

inline constexpr const char* kActions = "OUTPUTS/LINE1/actions";
inline constexpr const char* kForm = "OUTPUTS/LINE1/signalForm";
inline constexpr const char* kNoLevel = "0.0|0.00";
inline constexpr Condition kSwitched = is("OUTPUTS/LINE1/mode", "GP");

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
    return rule(id, Warning, "adv_053")
        .when(kSwitched, digitOn(kActions, action), noBounds...)
        .naming("TEMPSENS/SENS1/min", kActions);
}
inline constexpr Condition kNoLowBound = every(kTemperatures, is("TEMPSENS/SENS%2/min", kColdest));
inline constexpr Condition kNoHighBound = every(kTemperatures, is("TEMPSENS/SENS%2/max", kHottest));

// A form of the signal that asks for a time.
constexpr Rule timeless(const char* id, const char* forms, const char* path)
{
    return rule(id, Error, "adv_050")
        .when(kSwitched, is(kForm, forms), is(path, "0"))
        .naming(path, kForm)
        .telling(valueOf(kForm), captionOf(path), valueOf(path));
}

inline constexpr auto kOutputRules = rulesOf(
    rule("shock_levels", Hint, "adv_055")
        .when(isNot("ACCEL/SENSORS/sh2", kNoLevel), notBelow("ACCEL/SENSORS/sh1", "ACCEL/SENSORS/sh2"))
        .naming("ACCEL/SENSORS/sh1", "ACCEL/SENSORS/sh2")
        .telling(valueOf("ACCEL/SENSORS/sh1"), valueOf("ACCEL/SENSORS/sh2")),
    rule("output_unsafe", Warning, "adv_048")
        .when(kSwitched, like(kActions, "1"), isOff("OUTPUTS/LINE1/safeBlock"))
        .naming("OUTPUTS/LINE1/safeBlock", kActions)
        .mending("OUTPUTS/LINE1/safeBlock", "1"),
    rule("output_idle", Hint, "adv_049")
        .when(kSwitched, unlike(kActions, "1"))
        .whenAny(isOn(kForm), isOn("OUTPUTS/LINE1/onPeriod"), isOn("OUTPUTS/LINE1/offPeriod"),
                 isOn("OUTPUTS/LINE1/autoOffDelay"))
        .naming(kActions, kForm),
    timeless("output_time_on", "1|2", "OUTPUTS/LINE1/onPeriod"),
    timeless("output_time_off", "2", "OUTPUTS/LINE1/offPeriod"),
    rule("output_off_delay", Error, "adv_050")
        .when(kSwitched, is(kForm, "2"), isOn("OUTPUTS/LINE1/autoOff"), is("OUTPUTS/LINE1/autoOffDelay", "0"))
        .naming("OUTPUTS/LINE1/autoOffDelay", "OUTPUTS/LINE1/autoOff")
        .telling(valueOf(kForm), captionOf("OUTPUTS/LINE1/autoOffDelay"),
                 valueOf("OUTPUTS/LINE1/autoOffDelay")),
    rule("output_field", Hint, "adv_034")
        .when(kSwitched, like(kActions, "[12]"), lacks(at<field("StateOut1")>))
        .naming(kMaskPath, kActions)
        .telling(boxOf(at<field("StateOut1")>))
        .ticking(at<field("StateOut1")>),
    rule("output_by_line", Warning, "adv_051")
        .each(kLines)
        .when(kSwitched, digitOn(kActions, lineAction), is("SENSORS/IN%1/normState", kUnused))
        .naming(kActions, "SENSORS/IN%1/normState")
        .telling(outerNumber()),
    rule("output_by_shock", Warning, "adv_054")
        .each(kShockSensors)
        .when(kSwitched, digitOn(kActions, shockAction), is("ACCEL/SENSORS/sh%1", kNoLevel))
        .naming("ACCEL/SENSORS/sh%1", kActions)
        .telling(outerNumber()),
    rule("output_by_supply", Warning, "adv_052")
        .when(kSwitched, kNoSupplyLine)
        .whenAny(digitOn(kActions, at<9>), digitOn(kActions, at<10>), digitOn(kActions, at<14>),
                 digitOn(kActions, at<15>))
        .naming("SYSTEM/PWRSENS/line", kActions),
    byTemperature("output_by_cold", at<11>, kNoLowBound),
    byTemperature("output_by_heat", at<12>, kNoHighBound),
    byTemperature("output_by_normal", at<13>, kNoLowBound, kNoHighBound));

} // namespace vlk::review::advice
