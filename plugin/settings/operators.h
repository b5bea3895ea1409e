#pragma once

// The mobile operators that the product knows: whose access data a preset of the operator lists fills in, and
// which rows the table of access points starts with. The data are those that the operators publish.

#include "settings/rule.h"

#include <cstddef>

namespace vlk {

struct MobileOperator
{
    const char* code;   // mobile country code and network code; empty: no row in the table of access points
    const char* preset; // text or translation key in the operator lists; empty: no preset
    const char* apn;
    const char* login;
    const char* password;
};

namespace operators {

inline constexpr MobileOperator kAll[] = {
    {"25001", "cfgt1_002", "internet.mts.ru", "mts", "mts"},
    {"25099", "cfgt1_003", "internet.beeline.ru", "beeline", "beeline"},
    {"25002", "cfgt1_004", "internet", "", ""},
    {"25020", "", "internet.tele2.ru", "", ""},
    {"24801", "", "internet.emt.ee", "", ""},
    {"", "M2M Express", "m2m.express", "", ""},
    {"", "M2M Beeline", "m2m.beeline.ru", "beeline", "beeline"},
    {"25039", "", "internet.rt.ru", "", ""},
    {"40101", "", "internet.beeline.kz", "@internet.beeline", "beeline"},
    {"40102", "", "internet", "", ""},
    {"25701", "", "internet", "", ""},
    {"25702", "", "mts", "mts", "mts"},
};

// The operators that have a text in one of their columns, in order. An array too short or too long for them
// does not compile.
template <std::size_t size>
consteval std::array<const MobileOperator*, size> with(const char* MobileOperator::*column)
{
    std::array<const MobileOperator*, size> found{};
    std::size_t count = 0;
    for (const MobileOperator& entry : kAll) {
        if (*(entry.*column))
            found.at(count++) = &entry;
    }
    return count == size ? found : throw "the table has another number of such operators";
}

inline constexpr auto kPresets = with<5>(&MobileOperator::preset);
inline constexpr auto kApnList = with<10>(&MobileOperator::code);

consteval PresetRow preset(const char* code, std::size_t number)
{
    return {code, {kPresets[number]->apn, kPresets[number]->login, kPresets[number]->password}};
}

} // namespace operators

// Row 0 to 9 of the table of access points as it comes from the factory.
inline constexpr int kApnRowCount = 10;

constexpr const MobileOperator& defaultApnRow(int row)
{
    return *operators::kApnList[static_cast<std::size_t>(row)];
}

// Items of an operator list: the presets, then the choice by the SIM's network, then data of one's own. The
// codes live in the window alone.
inline constexpr Code kOperatorCodes[] = {
    {.code = "0", .label = operators::kPresets[0]->preset},
    {.code = "1", .label = operators::kPresets[1]->preset},
    {.code = "2", .label = operators::kPresets[2]->preset},
    {.code = "3", .label = operators::kPresets[3]->preset},
    {.code = "4", .label = operators::kPresets[4]->preset},
    {.code = "5", .label = "cfgt1_119"},
    {.code = "6", .label = "cfgt1_120"},
};
inline constexpr const char* kAutomaticOperator = "5";
inline constexpr const char* kOtherOperator = "6";

// Access point, login and password of each item; the last two start empty.
inline constexpr PresetRow kOperatorPresets[] = {
    operators::preset("0", 0),      operators::preset("1", 1), operators::preset("2", 2),
    operators::preset("3", 3),      operators::preset("4", 4), {kAutomaticOperator, {"", "", ""}},
    {kOtherOperator, {"", "", ""}},
};

} // namespace vlk
