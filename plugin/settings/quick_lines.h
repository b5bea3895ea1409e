#pragma once

// The input lines of the quick window. It offers whole uses; in the file a use is the state of the line at
// rest, the ignition flag of an element inside, and that element's fixed values.

#include "catalogue/field_catalogue.h"
#include "settings/settings_table.h"

#include <algorithm>

namespace vlk::quick {

// clang-format off
inline constexpr Code kUses[] = {
    {.code = "NU",           .label = "cfgwl_012"},                   // Not used
    {.code = "NS+",          .label = "cfgt8_003", .format = "%1+"},  // Normally closed+
    {.code = "NB+",          .label = "cfgt8_004", .format = "%1+"},  // Normally open+
    {.code = "NB+ ignition", .label = "cfgt8_051"},                   // Ignition, normally open
    {.code = "NS+ ignition", .label = "cfgt8_052"},                   // Ignition, normally closed
    {.code = "NB-",          .label = "cfgt8_004", .format = "%1-"},  // Normally open-
    {.code = "NS-",          .label = "cfgt8_003", .format = "%1-"},  // Normally closed-
    {.code = "AIN",          .label = "cfgwl_016"},                   // Analogue input
};

// State at rest and ignition of each use. Ignition on a line that switches to ground is no use of this
// window.
inline constexpr PresetRow kUseRows[] = {
    {"NU",           {"NU", "0"}},
    {"NS+",          {"NS+", "0"}},
    {"NB+",          {"NB+", "0"}},
    {"NB+ ignition", {"NB+", "1"}},
    {"NS+ ignition", {"NS+", "1"}},
    {"NB-",          {"NB-", "0"}},
    {"NS-",          {"NS-", "0"}},
    {"AIN",          {"AIN", "0"}},
    {"NU",           {"NB-", "1"}},
    {"NU",           {"NS-", "1"}},
};
// clang-format on

inline constexpr Code kStates[] = {{.code = "NU"},  {.code = "NS+"}, {.code = "NB+"},
                                   {.code = "NB-"}, {.code = "NS-"}, {.code = "AIN"}};
inline constexpr Code kNoOrYes[] = {{.code = "0"}, {.code = "1"}};
inline constexpr const char* kToSupply = "NS+|NB+";
inline constexpr const char* kToGround = "NS-|NB-";
inline constexpr const char* kDigital = "NS+|NB+|NS-|NB-";

// A mask in which these fields of a record have one sign and the others another; for a rule "*" leaves them
// alone.
template <int count = kFieldCount>
constexpr auto fieldsAs(char others, char sign, std::initializer_list<int> fields)
{
    std::array<char, count + 1> mask{};
    std::fill_n(mask.begin(), count, others);
    for (const int field : fields)
        mask[field] = sign;
    return mask;
}
template <int... fields>
inline constexpr auto kMaskWithFields = fieldsAs('*', '1', {fields...});
template <int... fields>
inline constexpr const char* kWithFields = kMaskWithFields<fields...>.data();
inline constexpr const char* kMask = "PROTOCOL/ZETA/mask";

inline constexpr Heading kInputLines{"cfgwl_017"}; // Input lines

struct Line
{
    const char* uses;
    const char* caption;
    const char* name; // of a line in use
    double ignition;  // where the file lacks the element with the flag
};

// clang-format off
inline constexpr Line kLines[] = {
    {"NU|NS+|NB+|NB+ ignition|NS+ ignition", "cfgt8_010", "UIN1", 1},  // Line IN1
    {"NU|NB-|NS-",                           "cfgt8_011", "UIN2", 0},  // Line IN2
    {"NU|NS+|NB+|AIN",                       "cfgt8_012", "UIN3", 0},  // Line AIN3
};

inline constexpr auto kLineRows = rowsOf(
    group("SENSORS"),
    constant("page", "SENSORS"),
    kInputLines,
    repeat<3>([](int number) {
        const Line& line = kLines[number - 1];
        return rowsOf(
            group("SENSORS/IN%1"),
            choice("use", kUses, "NU")        .offering(line.uses).notStored().ifMissing(Missing::KeepsValue).in("comboBox_NormState_In_%1").caption(line.caption),
            choice("ign", kNoOrYes, "0")      .byNumber().unknownIs("0").notStored(),
            choice("normState", kStates, "NU").unknownIs("").noItemIs(""),
            constant("name", line.name),

            group("SENSORS/IN%1/IN%1DIN").onlyWhen(when("SENSORS/IN%1/normState", kToGround)),
            link("ign", "SENSORS/IN%1/ign", 0).ifNoElement(line.ignition),
            constant("cntlRestore", "1"),
            constant("analysTime", "2500"),

            group("SENSORS/IN%1/IN%1ADIN").onlyWhen(when("SENSORS/IN%1/normState", kToSupply)),
            link("ign", "SENSORS/IN%1/ign", 1).ifNoElement(line.ignition),
            constant("cntlRestore", "0"),
            constant("analysTime", "2500"),
            constant("lowLvl", "5000"),
            constant("highLvl", "6000"),

            group("SENSORS/IN%1/IN%1AIN").onlyWhen(when("SENSORS/IN%1/normState", "AIN")),
            constant("thld", "5000"),
            constant("trhldOff", "0"),
            constant("filterMode", "1"),
            constant("filterLen", "30"),
            constant("filterLvl", "5"));
    }));
// clang-format on

inline constexpr auto kLineSets =
    repeat<3>([](int) { return onSave(when("SENSORS/IN%1/normState", "NU"), "SENSORS/IN%1/name", ""); });

inline constexpr auto kLinePresets = repeat<3>([](int) {
    return Presets{.trigger = "SENSORS/IN%1/use",
                   .fields = {"SENSORS/IN%1/normState", "SENSORS/IN%1/ign"},
                   .rows = kUseRows,
                   .settles = true};
});

// Fields of a record: the states of the digital lines, and the voltage of each line.
inline constexpr const char* kLineVoltages[] = {
    kWithFields<field("StateU_Ain1")>, kWithFields<field("StateU_Ain2")>, kWithFields<field("StateU_Ain3")>};

inline constexpr auto kLineMasks = repeat<3>([](int number) {
    // clang-format off
    return rulesOf(
        onSave(when("SENSORS/IN%1/normState", kDigital), kMask, kWithFields<field("StateIn1")>),
        onSave(when("SENSORS/IN%1/normState", "AIN"),    kMask, kLineVoltages[number - 1]));
    // clang-format on
});

} // namespace vlk::quick
