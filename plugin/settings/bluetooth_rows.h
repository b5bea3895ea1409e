#pragma once

// The rows of the table that bluetooth_settings.h tells of.

#include "settings/bluetooth_sensor_types.h"
#include "settings/bluetooth_settings.h"
#include "settings/bluetooth_universal_rows.h"
#include "settings/shared_rows.h"
#include <algorithm>
#include <initializer_list>
#include <utility>

namespace vlk::bluetooth {

inline constexpr const char* kSection = "BLUETOOTH";

inline constexpr std::size_t kTypes = std::size(kBluetoothSensorTypes);
using Label = std::array<char, 48>;

constexpr Label textOf(std::initializer_list<std::string_view> parts)
{
    Label text{};
    std::size_t size = 0;
    for (const std::string_view part : parts) {
        for (const char sign : part)
            text[size++] = sign;
    }
    return text;
}

// Vendors are numbered from 0.
constexpr const char* vendorNumber(std::size_t n)
{
    return n == 0 ? "0" : universal::kNumberTexts.at(n - 1).code;
}

// What the rows of a type name, from its row in the table of types.
template <std::size_t i>
struct Names
{
    static constexpr BluetoothSensorType kType = kBluetoothSensorTypes[i];
    static constexpr bool kHasIndex = kType.index.list != BluetoothList::None;

    static constexpr Path kTypePath{kType.section, "type"};
    static constexpr PathOf<Choice> kIndexPath{kType.index.elsewhere ? kType.index.elsewhere : kType.section,
                                               "idx"};

    static constexpr auto kVendors = [] {
        std::array<Code, kType.vendors.size()> codes{};
        for (std::size_t n = 0; n < codes.size(); ++n)
            codes[n] = {
                .code = vendorNumber(n), .label = kType.vendors[n].name, .offered = kType.vendors[n].offered};
        return codes;
    }();
    // "1|2": those whose value takes a number, where not all do.
    static constexpr auto kIndexedVendors = [] {
        std::array<char, 3 * kType.vendors.size() + 1> text{};
        auto end = text.begin();
        for (std::size_t n = 0; n < kType.vendors.size(); ++n) {
            if (!kType.vendors[n].indexed)
                continue;
            if (end != text.begin())
                *end++ = '|';
            end = std::ranges::copy(std::string_view(vendorNumber(n)), end).out;
        }
        return text;
    }();
    static constexpr bool kAllIndexed = [] {
        for (const BluetoothVendor& vendor : kType.vendors) {
            if (!vendor.indexed)
                return false;
        }
        return true;
    }();
    static constexpr When kIndexed = kAllIndexed ? When{} : when(kTypePath, kIndexedVendors.data());

    static constexpr auto kIndexFormats = [] {
        std::array<Label, kType.index.known> formats{};
        for (std::size_t n = 0; n < formats.size(); ++n) {
            const universal::NumberText& number = universal::kNumberTexts[n];
            formats[n] = textOf({"%1 ", kType.index.known > 9 ? number.label : number.code});
        }
        return formats;
    }();
    // A file may ask for no number at all.
    static constexpr auto kIndices = [] {
        std::array<Code, kType.index.known + 1> codes{};
        for (std::size_t n = 0; n < kIndexFormats.size(); ++n)
            codes[n] = {.code = universal::kNumberTexts[n].code,
                        .label = kType.index.text,
                        .format = kIndexFormats[n].data(),
                        .offered = static_cast<int>(n) < kType.index.offered};
        codes.back() = {.code = "-1", .offered = false};
        return codes;
    }();
};

template <std::size_t i>
constexpr Choice indexRow()
{
    using Type = Names<i>;
    return choice("idx", Type::kIndices, "1")
        .byNumber()
        .unknownIs("1")
        .ifUnoffered(Unoffered::KeepsValue)
        .in({Type::kType.section, Type::kType.index.widget})
        .caption(Type::kType.index.caption);
}

// The element of a type, there while the value at `owner` is the type's code.
template <std::size_t i>
constexpr auto rowsOfType(Path owner)
{
    using Type = Names<i>;
    const When chosen = when(owner, Type::kType.code);
    if constexpr (!Type::kType.vendorWidget) {
        return universal::rows(chosen);
    } else {
        const Choice vendor = choice("type", Type::kVendors, "0")
                                  .byNumber()
                                  .unknownIs("0")
                                  .ifUnoffered(Unoffered::KeepsValue)
                                  .in({Type::kType.section, Type::kType.vendorWidget})
                                  .caption(Type::kType.vendorCaption);
        constexpr auto more = [] {
            std::array<Setting, Type::kType.more.size()> rows{};
            std::ranges::copy(Type::kType.more, rows.begin());
            return rows;
        }();
        const Group own = group(Type::kType.section).onlyWhen(chosen);
        if constexpr (!Type::kHasIndex) {
            return rowsOf(own, vendor, more);
        } else if constexpr (!Type::kType.index.elsewhere) {
            return rowsOf(own, vendor, indexRow<i>(), more);
        } else {
            const Group beside = group("TS%1")
                                     .named(Type::kType.index.elsewhere)
                                     .atSave(ElementSave::AnewIfAny)
                                     .onlyWhen(chosen);
            constexpr auto constants = [] {
                std::array<Setting, Type::kType.index.withType> rows{};
                std::ranges::fill(rows, constant("type", "0"));
                return rows;
            }();
            // Whether it counts is known when the vendor has been read.
            return rowsOf(beside, constants, indexRow<i>().onlyWhen(Type::kIndexed).readLast(), own, vendor,
                          more);
        }
    }
}

constexpr int numberOf(const char* code)
{
    int number = 0;
    for (; *code; ++code)
        number = number * 10 + (*code - '0');
    return number;
}

// No type, and the others by their numbers.
template <std::size_t count>
constexpr auto typeCodes(bool (*isListed)(const BluetoothSensorType&))
{
    std::array<Code, count + 1> codes{};
    std::size_t size = 0;
    codes[size++] = {.code = "0", .label = "wrd_002"};
    for (const BluetoothSensorType& type : kBluetoothSensorTypes) {
        if (isListed(type))
            codes[size++] = {.code = type.code, .label = type.text ? type.text : "", .offered = type.offered};
    }
    std::ranges::sort(codes,
                      [](const Code& a, const Code& b) { return numberOf(a.code) < numberOf(b.code); });
    return codes;
}

constexpr bool hasText(const BluetoothSensorType& type)
{
    return type.text;
}
// A file may name any type that has a text; those of the list are offered.
inline constexpr auto kTypeCodes = typeCodes<std::ranges::count_if(kBluetoothSensorTypes, hasText)>(hasText);
inline constexpr auto kFormCodes = [] {
    auto codes = typeCodes<kTypes>([](const BluetoothSensorType&) { return true; });
    for (Code& code : codes)
        code.offered = true;
    return codes;
}();

inline constexpr Choice kForm = choice("form", kFormCodes, "0").byNumber().unknownIs("0").notStored();

template <std::size_t... types>
constexpr auto elementRows(std::index_sequence<types...>)
{
    return rowsOf(group("SENS%1"), kForm, rowsOfType<types>("SENS%1/form")...);
}

template <std::size_t... types>
constexpr auto sensorRows(std::index_sequence<types...>)
{
    // clang-format off
    return rowsOf(
        group("SENS%1"), universal::kSensor,
        choice("type", kTypeCodes, "0").byNumber().unknownIs("0").ifUnoffered(Unoffered::KeepsValue)
                                                     .in("comboBox_Type_Sens_%1")     .caption("cfgt17_025"),  // Sensor type
        kForm,
        shared::bluetoothAddress(text("macaddr", "")).in("lineEdit_Bt_MacAdr_Sens_%1").caption("cfgt17_007"),  // MAC address
        text("name", "")                             .in("lineEdit_Name_Sens_%1")     .caption("cfgt17_026"),  // Sensor name
        rowsOfType<types>("SENS%1/type")...);
    // clang-format on
}

inline constexpr auto kSensorRows = sensorRows(std::make_index_sequence<kTypes>{});

// clang-format off
inline constexpr auto kRows = rowsOf(
    group("GLOBAL"),
    flag("use", 1).in("checkBox_Bt_Use").caption("cfgt17_004"),  // Use Bluetooth

    group("CHANNEL1"),
    constant("device", "SENS"),
    repeat<kBluetoothSensors>([](int) { return kSensorRows; }));
// clang-format on

} // namespace vlk::bluetooth
