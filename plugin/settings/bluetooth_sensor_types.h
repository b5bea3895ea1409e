#pragma once

// The types of wireless sensor that the Bluetooth page can bind, as data: the settings of a type, its form,
// what a sensor of each vendor supplies, and which of the tracker's numbers its value takes all come from its
// row. A further type is a further row and its texts.

#include "settings/settings_table.h"
#include "settings/user_param_types.h"

namespace vlk {

// Sensors that the tracker can be bound to at a time.
inline constexpr int kBluetoothSensors = 4;

using UserParamTypes = std::span<const userParamType>;

struct BluetoothVendor
{
    const char* name;
    UserParamTypes supplies; // user parameters, in the order in which they are offered
    bool needsName = false;  // found by its name: the edit of the name is open
    bool named = false;      // whether it opens when the user changes to this vendor
    bool indexed = true;     // its value takes one of the tracker's numbers
    bool offered = true;
    UserParamTypes withdraws{}; // where that differs from `supplies`
};

// Lists of numbers that several sensors share: what one of them takes is gone for the others.
enum class BluetoothList { None, Own, Fuel, Temperature };

// The numbers of a value: "Fuel level sensor  1" and so on, right-justified. A file may know more of them
// than the list has.
struct BluetoothIndex
{
    BluetoothList list = BluetoothList::None;
    int known = 0;
    int offered = 0;
    const char* text = "";
    const char* widget = nullptr;
    const char* caption = "";
    // Stands in the element TS%1 that a temperature sensor would have, which has this name in paths;
    // `withType`: beside its type 0.
    const char* elsewhere = nullptr;
    bool withType = false;
};

struct BluetoothSensorType
{
    const char* code;    // in the file
    const char* text;    // null: the list of types has no text for it
    const char* section; // its element, and the object name of its form
    const char* page;    // of the stack
    bool offered;
    int height;
    const char* vendorWidget;
    const char* vendorCaption;
    std::span<const BluetoothVendor> vendors;
    BluetoothIndex index{};
    std::span<const Setting> more{}; // what else the element holds
    // The name's edit for all vendors alike; else as the vendor says.
    enum class Naming { ByVendor, Never, Always } naming = Naming::ByVendor;
};

namespace bluetooth {

using enum userParamType;

template <userParamType... types>
inline constexpr userParamType kSupplied[] = {types...};

// clang-format off
inline constexpr BluetoothVendor kFuelLevel[] = {
    {.name = "ESCORT TD",              .supplies = kSupplied<Link, SignalLevel, Battery>,              .needsName = true, .named = true},
    {.name = "GL-TV",                  .supplies = kSupplied<Link, SignalLevel>},
    {.name = "TECHNOTON DUT E",        .supplies = kSupplied<Link, SignalLevel, State>},
    {.name = "MECHATRONICS DOMINATOR", .supplies = kSupplied<Link, SignalLevel, Battery>,              .withdraws = kSupplied<Link, SignalLevel, State, Battery>},
    {.name = "MIELTA FANTOM",          .supplies = kSupplied<Link, SignalLevel, State, Battery, Tilt>, .needsName = true, .named = true},
};

inline constexpr BluetoothVendor kTemperature[] = {
    {.name = "ADM31/35",  .supplies = kSupplied<Light, Battery, SignalLevel, State, Link>},
    {.name = "ESCORT TL", .supplies = kSupplied<Light, Battery, SignalLevel, Link>, .needsName = true, .named = true},
    {.name = "TZ-BT04",   .supplies = kSupplied<Battery, SignalLevel, State, Link>},
    {.name = "ELA T/RHT", .supplies = kSupplied<SignalLevel, Link>,                                    .named = true, .offered = false},
};

inline constexpr BluetoothVendor kTiltAngle[] = {
    {.name = "ADM32",               .supplies = kSupplied<Link, SignalLevel, State, Battery, Tilt>,                                       .indexed = false},
    {.name = "ESCORT DU",           .supplies = kSupplied<Link, SignalLevel, State, Battery, Tilt>,     .needsName = true, .named = true},
    {.name = "GNOM DP",             .supplies = kSupplied<Link, SignalLevel, State, Tilt>},
    {.name = "MECHATRONICS DEGREE", .supplies = kSupplied<Link, SignalLevel, State, TiltX, TiltY, TiltZ>,                                 .indexed = false},
    {.name = "ELA MOV(ANG)",        .supplies = kSupplied<Link, SignalLevel, AccelerationX, AccelerationY, AccelerationZ>, .named = true, .indexed = false},
};

inline constexpr BluetoothVendor kCombined[] = {
    {.name = "TESLiOT",   .supplies = kSupplied<Light, Battery, SignalLevel, State, Link, AccelerationX, AccelerationY, AccelerationZ, Magnet>},
    {.name = "ESCORT TH", .supplies = kSupplied<Light, Battery, SignalLevel, State, Pressure, Link>, .needsName = true, .named = true},
};
// clang-format on

inline constexpr BluetoothVendor kAxleLoad[] = {
    {.name = "TECHNOTON GNOM DDE", .supplies = kSupplied<Link, Pressure, SignalLevel, State>}};
inline constexpr BluetoothVendor kFuelFlowing[] = {
    {.name = "TECHNOTON DFM", .supplies = kSupplied<FuelFlow, Link, SignalLevel, State, Battery, WorkTime>}};
inline constexpr BluetoothVendor kAnalogueInput[] = {
    {.name = "ELA AI", .supplies = kSupplied<Link, SignalLevel>, .needsName = true, .named = true}};
inline constexpr BluetoothVendor kMagnetic[] = {
    {.name = "ELA MAG/MOV/DI/PIR", .supplies = kSupplied<Link, SignalLevel, State, Magnet>}};
// Sensors of any make: the rows of the form tell what is measured.
inline constexpr BluetoothVendor kAnyMaker[] = {{.name = "", .supplies = kSupplied<Link, SignalLevel>}};

// clang-format off
inline constexpr Setting kFuelThreshold[] = {
    integer("thld", 50).range(0, 4095).in("FS%1/spinBox_FS_Thld").caption("cfgt17_041"),  // Sensitivity threshold
    flag("thldOff", 1).resetTo(0).in("FS%1/checkBox_FS_ThldOff").caption("cfgt17_042"),   // Ignore the threshold in motion
};
// clang-format on

constexpr BluetoothIndex degrees(const char* element, bool withType)
{
    return {.list = BluetoothList::Temperature,
            .known = 4,
            .offered = 4,
            .text = "cfgt17_043",
            .widget = "comboBox_Idx",
            .caption = "cfgt17_046",
            .elsewhere = element,
            .withType = withType};
}

} // namespace bluetooth

// In the order of the pages of the stack.
// clang-format off
inline constexpr BluetoothSensorType kBluetoothSensorTypes[] = {
    {.code = "1", .text = "cfgt17_018", .section = "FS%1",  .page = "page_FS",  .offered = true,  .height = 100,
     .vendorWidget = "comboBox_FS_Type", .vendorCaption = "cfgt17_039", .vendors = bluetooth::kFuelLevel,
     .index = {.list = BluetoothList::Fuel, .known = 16, .offered = 6, .text = "cfgt17_018", .widget = "comboBox_FS_Idx", .caption = "cfgt17_040"},
     .more = bluetooth::kFuelThreshold},
    {.code = "2", .text = "cfgt17_019", .section = "TS%1",  .page = "page_TS",  .offered = true,  .height = 70,
     .vendorWidget = "comboBox_TS_Type", .vendorCaption = "cfgt17_045", .vendors = bluetooth::kTemperature,
     .index = {.list = BluetoothList::Temperature, .known = 4, .offered = 4, .text = "cfgt17_073", .widget = "comboBox_TS_Idx", .caption = "cfgt17_040"}},
    {.code = "8", .text = nullptr,      .section = "AIN%1", .page = "page_AIN", .offered = false, .height = 70,
     .vendorWidget = "comboBox_Type",    .vendorCaption = "cfgt17_076", .vendors = bluetooth::kAnalogueInput,
     .index = {.list = BluetoothList::Own, .known = 6, .offered = 6, .text = "cfgt17_077", .widget = "comboBox_Idx", .caption = "cfgt17_040"}},
    {.code = "9", .text = nullptr,      .section = "HS%1",  .page = "page_HS",  .offered = false, .height = 70,
     .vendorWidget = "comboBox_Type",    .vendorCaption = "cfgt17_025", .vendors = bluetooth::kMagnetic,
     .naming = BluetoothSensorType::Naming::Always},
    {.code = "3", .text = "cfgt17_020", .section = "AS%1",  .page = "page_AS",  .offered = false, .height = 70,
     .vendorWidget = "comboBox_Type",    .vendorCaption = "cfgt17_025", .vendors = bluetooth::kTiltAngle,
     .index = bluetooth::degrees("AS%1 TS%1", false)},
    {.code = "4", .text = "cfgt17_021", .section = "AXS%1", .page = "page_AXS", .offered = false, .height = 70,
     .vendorWidget = "comboBox_Type",    .vendorCaption = "cfgt17_025", .vendors = bluetooth::kAxleLoad,
     .naming = BluetoothSensorType::Naming::Never},
    {.code = "5", .text = "cfgt17_022", .section = "FW%1",  .page = "page_FW",  .offered = false, .height = 70,
     .vendorWidget = "comboBox_Type",    .vendorCaption = "cfgt17_025", .vendors = bluetooth::kFuelFlowing,
     .naming = BluetoothSensorType::Naming::Never},
    {.code = "6", .text = "cfgt17_023", .section = "U%1",   .page = "page_UP",  .offered = false, .height = 560,
     .vendorWidget = nullptr,            .vendorCaption = nullptr,      .vendors = bluetooth::kAnyMaker,
     .naming = BluetoothSensorType::Naming::Always},
    {.code = "7", .text = "cfgt17_074", .section = "US%1",  .page = "page_US",  .offered = true,  .height = 70,
     .vendorWidget = "comboBox_Type",    .vendorCaption = "cfgt17_025", .vendors = bluetooth::kCombined,
     .index = bluetooth::degrees("US%1 TS%1", true)},
};
// clang-format on

} // namespace vlk
