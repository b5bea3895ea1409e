#include "settings/bluetooth_settings.h"

#include "settings/bluetooth_rows.h"

namespace vlk {

namespace {

using namespace bluetooth;

constexpr auto kElementRows =
    repeat<kBluetoothSensors>([](int) { return elementRows(std::make_index_sequence<kTypes>{}); });

constexpr auto kFormSets = [] {
    std::array<Sets, kTypeCodes.size()> sets{};
    for (std::size_t i = 0; i < sets.size(); ++i)
        sets[i] = onEditOrRead(when("SENS%1/type", kTypeCodes[i].code), "SENS%1/form", kTypeCodes[i].code);
    return sets;
}();

constexpr auto kSets = repeat<kBluetoothSensors>([](int) { return rulesOf(kFormSets, universal::kSets); });
constexpr auto kRanges = repeat<kBluetoothSensors>([](int) { return universal::kRanges; });

// The number of a sensor is shown where its vendor's value takes one.
template <std::size_t i>
constexpr auto enablesOfType()
{
    using Type = Names<i>;
    if constexpr (Type::kAllIndexed)
        return std::array<Enable, 0>{};
    else
        return std::array{show({Type::kType.section, Type::kType.index.widget}, Type::kIndexed)};
}

template <std::size_t... types>
constexpr auto sensorEnables(std::index_sequence<types...>)
{
    return rulesOf(enablesOfType<types>()..., universal::kEnables);
}

constexpr auto kEnables =
    rulesOf(enable(parts("groupBox_Bt_List"), when("GLOBAL/use")),
            repeat<kBluetoothSensors>([](int) { return sensorEnables(std::make_index_sequence<kTypes>{}); }));

template <std::size_t i>
constexpr auto exclusivesOfType()
{
    using Type = Names<i>;
    constexpr BluetoothList list = Type::kType.index.list;
    if constexpr (list == BluetoothList::Fuel || list == BluetoothList::Temperature)
        return std::array{ExclusiveChoice{.path = Type::kIndexPath,
                                          .when = when("SENS%1/form", Type::kType.code),
                                          .also = Type::kIndexed,
                                          .list = list == BluetoothList::Fuel ? "fuel" : "temperature",
                                          .holder = "SENS%1"}};
    else
        return std::array<ExclusiveChoice, 0>{};
}

template <std::size_t... types>
constexpr auto sensorExclusives(std::index_sequence<types...>)
{
    return rulesOf(exclusivesOfType<types>()..., universal::kExclusives);
}

constexpr auto kExclusives =
    repeat<kBluetoothSensors>([](int) { return sensorExclusives(std::make_index_sequence<kTypes>{}); });

} // namespace

constexpr SettingsTable kBluetoothSettings =
    tableOf<kRows, kSets, kRanges, kExclusives, kEnables>(kSection, "cfgt17_001");

constexpr SettingsTable kBluetoothElements = tableOver<kElementRows, kRanges>("");

} // namespace vlk
