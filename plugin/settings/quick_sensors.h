#pragma once

// The fuel level sensors of the quick window: two on RS-485, two over Bluetooth. The file keeps them as the
// full window does; what the quick window does not show of a sensor has a fixed value.

#include "settings/quick_lines.h"
#include "settings/shared_rows.h"

namespace vlk::quick {

inline constexpr Heading kSensors{"cfgwl_011"}; // Sensors

inline constexpr const char* kRsCaptions[] = {"%1 1", "%1 2"};

// clang-format off
inline constexpr auto kRsRows = rowsOf(
    group("RS485"),
    constant("page", "RS485"),
    kSensors,
    flag("fuel", 0).notStored().in("checkBox_Fuel_RS485_Use").caption("cfgwl_029"),  // Use RS-485 fuel level sensors
    repeat<2>([](int number) {
        return rowsOf(
            flag("sensor%1", 0)         .notStored()              .in("checkBox_Fuel_RS485_Use_%1")  .caption("cfgwl_032", kRsCaptions[number - 1]),  // Sensor
            integer("address%1", number).range(0, 255).notStored().in("spinBox_Fuel_RS485_Addres_%1").caption("cfgwl_031"));                          // Network address
    }),

    group("RS485/OPTIONS"),
    text("owner1", ""),
    constant("owner2", ""),
    constant("boudrate", "19200"),
    constant("parity", "0"),
    constant("stopBit", "1"),

    // A sensor that is checked is kept, even while the window as a whole uses none.
    repeat<2>([](int number) {
        return rowsOf(
            group("RS485/FS%1").onlyWhen(when("RS485/sensor%1")).readWhen(when("RS485/OPTIONS/owner1", "FLDS")),
            link("use", "RS485/sensor%1", 1),
            constant("type", "0"),
            link("address", "RS485/address%1", number),
            constant("thld", "50"),
            constant("thldOff", "1"),
            constant("filterMode", "0"),
            constant("filterLength", "5"),
            constant("filterLvl", "5"));
    }));
// clang-format on

inline constexpr Code kSensorTypes[] = {
    {.code = "0", .label = "ESCORT TD"},
    {.code = "1", .label = "GL-TV"},
    {.code = "2", .label = "TECHNOTON"},
    {.code = "3", .label = "MECHATRONICS DOMINATOR"},
};
inline constexpr const char* kNamelessTypes = "1|3";

// Kinds of sensors that the file may name: 1 is a fuel level sensor.
// clang-format off
inline constexpr Code kThirdSensor[] = {
    {.code = "0", .label = "wrd_002"},                                                // No
    {.code = "1", .label = "cfgwl_032", .format = "%1 3", .widget = "checkBox_BT_1"}  // Sensor 3
};
inline constexpr Code kFourthSensor[] = {
    {.code = "0", .label = "wrd_002"},                                                // No
    {.code = "1", .label = "cfgwl_032", .format = "%1 4", .widget = "checkBox_BT_2"}  // Sensor 4
};
// clang-format on

struct Wireless
{
    int number;
    std::span<const Code> kinds;
    const char* type;
    const char* address;
    const char* name;
    const char* index;
    const char* caption; // columns have a heading; the name for screen readers tells the sensor too
};

// clang-format off
inline constexpr Wireless kWireless[] = {
    {3, kThirdSensor,  "comboBox_BT_Type_1", "lineEdit_BT_Mac_1", "lineEdit_BT_Name_1", "3", "%1 3"},
    {4, kFourthSensor, "comboBox_BT_Type_2", "lineEdit_BT_Mac_2", "lineEdit_BT_Name_2", "4", "%1 4"},
};
// clang-format on

constexpr auto wirelessChoice(const Wireless& sensor)
{
    return numbered(rowsOf(choice("sensor%1", sensor.kinds, "0").byNumber().unknownIs("0").notStored()),
                    sensor.number);
}

constexpr auto wirelessRows(const Wireless& sensor)
{
    constexpr When inUse = when("BLUETOOTH/sensors");
    constexpr When checked = when("BLUETOOTH/sensor%1", "1");
    constexpr When switchedOn = when("BLUETOOTH/GLOBAL/use");
    constexpr When forSensors = when("BLUETOOTH/CHANNEL1/device", "SENS");
    // clang-format off
    return numbered(rowsOf(
        group("BLUETOOTH/SENS%1").onlyWhen(inUse, checked).readWhen(switchedOn, forSensors),
        link("type", "BLUETOOTH/sensor%1", 1),
        shared::bluetoothAddress(text("macaddr", ":::::")).onlyWhen(checked).in(sensor.address).caption("cfgwl_034", sensor.caption),  // MAC address
        text("name", "")                                  .onlyWhen(checked).in(sensor.name)   .caption("cfgwl_035", sensor.caption),  // Name

        group("BLUETOOTH/FS%1").onlyWhen(inUse, checked).readWhen(switchedOn, forSensors),
        choice("type", kSensorTypes, "1").byNumber().resetTo("0").onlyWhen(checked).in(sensor.type).caption("cfgwl_033", sensor.caption),  // Model
        constant("idx", sensor.index),
        constant("thld", "50"),
        constant("thldOff", "0")),
        sensor.number);
    // clang-format on
}

// clang-format off
inline constexpr auto kBluetoothRows = rowsOf(
    group("BLUETOOTH"),
    constant("page", "BLUETOOTH"),
    kSensors,
    flag("sensors", 0).notStored().in("checkBox_BT_Use").caption("cfgwl_030"),  // Use Bluetooth fuel level sensors
    wirelessChoice(kWireless[0]),
    wirelessChoice(kWireless[1]),

    group("BLUETOOTH/GLOBAL").onlyWhen(when("BLUETOOTH/sensors")).readWhen(),
    flag("use", 1),

    group("BLUETOOTH/CHANNEL1").onlyWhen(when("BLUETOOTH/sensors")).readWhen(),
    text("device", "SENS"),
    constant("macaddr", ":::::"),
    constant("pass", ""),

    wirelessRows(kWireless[0]),
    wirelessRows(kWireless[1]));
// clang-format on

constexpr auto wirelessSets(int number)
{
    // clang-format off
    return numbered(rulesOf(
        afterRead(when("BLUETOOTH/sensor%1"),               "BLUETOOTH/sensors",     "1"),
        always(when("BLUETOOTH/FS%1/type", kNamelessTypes), "BLUETOOTH/SENS%1/name", "")),
        number);
    // clang-format on
}

// clang-format off
inline constexpr auto kSensorSets = rulesOf(
    repeat<2>([](int) { return afterRead(when("RS485/sensor%1"), "RS485/fuel", "1"); }),
    always(when("RS485/fuel"),        "RS485/OPTIONS/owner1",      "FLDS"),
    always(unless("RS485/fuel"),      "RS485/OPTIONS/owner1",      ""),
    wirelessSets(3),
    wirelessSets(4),
    always(when("BLUETOOTH/sensors"), "BLUETOOTH/GLOBAL/use",      "1"),
    always(when("BLUETOOTH/sensors"), "BLUETOOTH/CHANNEL1/device", "SENS"));
// clang-format on

// Fields of a record: level and temperature of each sensor, and what type 2 adds.
inline constexpr const char* kRsFields[] = {kWithFields<field("LevelRS485_1"), field("TempRS485_1")>,
                                            kWithFields<field("LevelRS485_2"), field("TempRS485_2")>};
inline constexpr const char* kWirelessFields[] = {kWithFields<field("LevelRS485_3"), field("Temp3")>,
                                                  kWithFields<field("LevelRS485_4"), field("Temp4")>};
inline constexpr const char* kExtraFields[] = {kWithFields<field("RS485Freq3")>,
                                               kWithFields<field("RS485Freq4")>};

constexpr auto wirelessMasks(int number)
{
    const std::size_t sensor = static_cast<std::size_t>(number) - 3;
    constexpr When inUse = when("BLUETOOTH/sensors");
    constexpr When checked = when("BLUETOOTH/sensor%1", "1");
    // clang-format off
    return numbered(rulesOf(
        onSave(inUse, kMask, kWirelessFields[sensor]).onlyIf(checked),
        onSave(inUse, kMask, kExtraFields[sensor]).onlyIf(checked, when("BLUETOOTH/FS%1/type", "2"))),
        number);
    // clang-format on
}

// clang-format off
inline constexpr auto kSensorMasks = rulesOf(
    repeat<2>([](int number) { return onSave(when("RS485/sensor%1"), kMask, kRsFields[number - 1]); }),
    wirelessMasks(3),
    wirelessMasks(4));
// clang-format on

constexpr auto wirelessEnables(int number)
{
    // clang-format off
    return numbered(rulesOf(
        Enable{.targets = number == 3 ? "comboBox_BT_Type_1 lineEdit_BT_Mac_1" : "comboBox_BT_Type_2 lineEdit_BT_Mac_2", .when = {when("BLUETOOTH/sensor%1", "1")}},
        Enable{.targets = number == 3 ? "lineEdit_BT_Name_1" : "lineEdit_BT_Name_2",
               .when = {when("BLUETOOTH/sensor%1", "1"),
                        unless("BLUETOOTH/FS%1/type", kNamelessTypes)}}),
        number);
    // clang-format on
}

// clang-format off
inline constexpr auto kSensorEnables = rulesOf(
    show(parts("frame_Fuel_RS485_Param"), when("RS485/fuel")),
    show(parts("frame_Bluetooth"),        when("BLUETOOTH/sensors")),
    repeat<2>([](int) { return enable("spinBox_Fuel_RS485_Addres_%1", when("RS485/sensor%1")); }),
    wirelessEnables(3),
    wirelessEnables(4));
// clang-format on

} // namespace vlk::quick
