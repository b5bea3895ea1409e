#pragma once

// Rules of advice: sensors on the serial line and by Bluetooth.

#include "review/advice_rule_parts.h"
#include "review/advice_rules.h"
#include "settings/bluetooth_sensor_types.h"
#include "settings/rs_settings.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vlk::review::advice {

constexpr int levelField(int sensor)
{
    constexpr int few = 6; // in a group of their own; the others have level and temperature in one field
    return sensor <= few ? field("LevelRS485_1") + sensor - 1 : field("LevelRS485_7") + sensor - few - 1;
}

inline constexpr const char* kOwner = "RS485/OPTIONS/owner1";
inline constexpr Condition kFuelOnLine = is(kOwner, "FLDS");
inline constexpr Condition kCountersOnLine = is(kOwner, "PCNT");

inline constexpr auto kRsRules =
    rulesOf(rule("fuel_field", Warning, "adv_018")
                .each(kRsFuelSensors)
                .when(kFuelOnLine, isOn("RS485/FS%1/use"), lacks(levelField))
                .naming(kMaskPath, "RS485/FS%1/use")
                .telling(outerNumber(), boxOf(levelField))
                .ticking(levelField),
            rule("fuel_addresses", Error, "adv_019")
                .eachPair(kRsFuelSensors)
                .when(kFuelOnLine, isOn("RS485/FS%1/use"), isOn("RS485/FS%2/use"),
                      same("RS485/FS%1/address", "RS485/FS%2/address"))
                .naming("RS485/FS%2/address", "RS485/FS%1/address")
                .telling(outerNumber(), innerNumber(), valueOf("RS485/FS%1/address")),
            rule("fuel_none", Warning, "adv_020")
                .when(kFuelOnLine, every(kRsFuelSensors, isOff("RS485/FS%2/use")))
                .naming("RS485/FS1/use", kOwner),
            rule("counters_none", Warning, "adv_021")
                .when(kCountersOnLine, every(kRsCounters, isOff("RS485/PCNT/id%2")))
                .naming("RS485/PCNT/id1", kOwner),
            rule("counter_addresses", Error, "adv_022")
                .eachPair(kRsCounters)
                .when(kCountersOnLine, isOn("RS485/PCNT/id%1"), same("RS485/PCNT/id%1", "RS485/PCNT/id%2"))
                .naming("RS485/PCNT/id%2", "RS485/PCNT/id%1")
                .telling(outerNumber(), innerNumber(), valueOf("RS485/PCNT/id%1")),
            rule("display_silent", Hint, "adv_023")
                .when(is(kOwner, "DDU"), isOff("RS485/DV01/Use"))
                .naming("RS485/DV01/Use")
                .mending("RS485/DV01/Use", "1"));

inline constexpr Condition kBluetoothOn = isOn("BLUETOOTH/GLOBAL/use");
inline constexpr const char* kWholeAddress = "^(?:[0-9A-Fa-f]{2}:){5}[0-9A-Fa-f]{2}$";

// A sensor of the type `type`, whose value takes the second number, at `index`.
constexpr Rule sentAs(const char* id, std::uint8_t numbers, const char* type, const char* index,
                      Position tick, auto... lacking)
{
    return rule(id, Warning, "adv_025")
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
    static constexpr const BluetoothSensorType& kType = kBluetoothSensorTypes[i];
    static constexpr bool kAny =
        std::ranges::any_of(kType.vendors, [](const BluetoothVendor& model) { return model.needsName; });
    // "BLUETOOTH/FS%1/type"
    static constexpr auto kModel = [] {
        std::array<char, 32> path{};
        auto end = path.begin();
        for (const std::string_view part : {"BLUETOOTH/", kType.section, "/type"})
            end = std::copy(part.begin(), part.end(), end);
        return path;
    }();
    // "0|4"
    static constexpr auto kCodes = [] {
        std::array<char, 32> list{};
        auto end = list.begin();
        for (std::size_t code = 0; code < kType.vendors.size(); ++code) {
            if (!kType.vendors[code].needsName)
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
    std::array<Rule, Sensors::kAny> rules;
    std::ranges::fill(rules, rule("bluetooth_name", Hint, "adv_030")
                                 .each(kBluetoothSensors)
                                 .when(kBluetoothOn, is("BLUETOOTH/SENS%1/type", Sensors::kType.code),
                                       is(Sensors::kModel.data(), Sensors::kCodes.data()),
                                       is("BLUETOOTH/SENS%1/name", ""))
                                 .naming("BLUETOOTH/SENS%1/name", Sensors::kModel.data())
                                 .telling(outerNumber(), valueOf(Sensors::kModel.data())));
    return rules;
}

inline constexpr auto kNameRules = []<std::size_t... types>(std::index_sequence<types...>)
{
    return rulesOf(nameless<types>()...);
}
(std::make_index_sequence<std::size(kBluetoothSensorTypes)>());

inline constexpr auto kBluetoothRules = rulesOf(
    sentAs("bluetooth_fuel_field", kRsFuelSensors, "1", "BLUETOOTH/FS%1/idx", levelField, lacks(levelField)),
    sentAs("bluetooth_temperature_field", kTemperatures, "2", "BLUETOOTH/TS%1/idx", preciseField,
           lacks(preciseField), lacks(temperatureField)),
    sentAs("bluetooth_combined_field", kTemperatures, "7", "BLUETOOTH/US%1 TS%1/idx", temperatureField,
           lacks(preciseField), lacks(temperatureField)),
    rule("fuel_numbers", Error, "adv_024")
        .each(kBluetoothSensors, kRsFuelSensors)
        .when(kBluetoothOn, is("BLUETOOTH/SENS%1/type", "1"), isNumbered("BLUETOOTH/FS%1/idx"), kFuelOnLine,
              isOn("RS485/FS%2/use"))
        .naming("BLUETOOTH/FS%1/idx", "RS485/FS%2/use")
        .telling(outerNumber(), innerNumber())
        .freeing("BLUETOOTH/FS%1/idx", "RS485/FS%2/use"),
    rule("bluetooth_address", Error, "adv_026")
        .each(kBluetoothSensors)
        .when(kBluetoothOn, isOn("BLUETOOTH/SENS%1/type"), unlike("BLUETOOTH/SENS%1/macaddr", kWholeAddress))
        .naming("BLUETOOTH/SENS%1/macaddr")
        .telling(outerNumber()),
    rule("bluetooth_addresses", Error, "adv_027")
        .eachPair(kBluetoothSensors)
        .when(kBluetoothOn, isOn("BLUETOOTH/SENS%1/type"), isOn("BLUETOOTH/SENS%2/type"),
              same("BLUETOOTH/SENS%1/macaddr", "BLUETOOTH/SENS%2/macaddr"),
              like("BLUETOOTH/SENS%1/macaddr", kWholeAddress))
        .naming("BLUETOOTH/SENS%2/macaddr", "BLUETOOTH/SENS%1/macaddr")
        .telling(outerNumber(), innerNumber(), valueOf("BLUETOOTH/SENS%1/macaddr")),
    rule("bluetooth_type", Warning, "adv_028")
        .each(kBluetoothSensors)
        .when(kBluetoothOn, isOff("BLUETOOTH/SENS%1/type"), isNot("BLUETOOTH/SENS%1/macaddr", "|:::::"))
        .naming("BLUETOOTH/SENS%1/type", "BLUETOOTH/SENS%1/macaddr")
        .telling(outerNumber()),
    rule("bluetooth_off", Warning, "adv_029")
        .when(isOff("BLUETOOTH/GLOBAL/use"), some(kBluetoothSensors, isOn("BLUETOOTH/SENS%2/type")))
        .naming("BLUETOOTH/GLOBAL/use")
        .mending("BLUETOOTH/GLOBAL/use", "1"),
    kNameRules);

} // namespace vlk::review::advice
