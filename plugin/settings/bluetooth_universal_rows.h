#pragma once

// The settings of the universal wireless sensor: four conditions for the messages that are taken at all
// (U1C1 and so on), and eight values that lie in them (U1P1 and so on). %1 is the number of the sensor, %2
// that of the row. A row whose group is 0 is switched off.

#include "settings/bluetooth_settings.h"

namespace vlk {

namespace universal {

// clang-format off
inline constexpr Code kOperators[] = {
    {.code = "0", .label = "abbr_049"},  // AND
    {.code = "1", .label = "abbr_048"}   // OR
};
inline constexpr Code kByteOrders[] = {
    {.code = "0", .label = "cfgt17_047"},  // Low byte first
    {.code = "1", .label = "cfgt17_048"}   // High byte first
};

// How a value lies in a message: width and kind.
inline constexpr Code kElementKinds[] = {
    {.code = "1b", .label = "wrd_016", .format = "1 %1, %2", .second = "wrd_019"},  // 1 B, bits
    {.code = "1u", .label = "wrd_016", .format = "1 %1, %2", .second = "wrd_020"},  // 1 B, unsigned
    {.code = "1s", .label = "wrd_016", .format = "1 %1, %2", .second = "wrd_021"},  // 1 B, signed
    {.code = "2b", .label = "wrd_017", .format = "2 %1, %2", .second = "wrd_019"},  // 2 B, bits
    {.code = "2u", .label = "wrd_017", .format = "2 %1, %2", .second = "wrd_020"},  // 2 B, unsigned
    {.code = "2s", .label = "wrd_017", .format = "2 %1, %2", .second = "wrd_021"},  // 2 B, signed
    {.code = "4b", .label = "wrd_017", .format = "4 %1, %2", .second = "wrd_019"},  // 4 B, bits
    {.code = "4u", .label = "wrd_017", .format = "4 %1, %2", .second = "wrd_020"},  // 4 B, unsigned
    {.code = "4s", .label = "wrd_017", .format = "4 %1, %2", .second = "wrd_021"},  // 4 B, signed
    {.code = "4f", .label = "wrd_017", .format = "4 %1, %2", .second = "wrd_022"},  // 4 B, real
    {.code = "8b", .label = "wrd_016", .format = "8 %1, %2", .second = "wrd_019"},  // 8 B, bits
    {.code = "8u", .label = "wrd_016", .format = "8 %1, %2", .second = "wrd_020"},  // 8 B, unsigned
    {.code = "8s", .label = "wrd_016", .format = "8 %1, %2", .second = "wrd_021"},  // 8 B, signed
    {.code = "8f", .label = "wrd_016", .format = "8 %1, %2", .second = "wrd_022"},  // 8 B, real
};

// What a value is in the tracker.
inline constexpr Code kTargets[] = {
    {.code = "0", .label = "cfgt17_049"},                    // Do not send
    {.code = "1", .label = "cfgt17_072"},                    // User parameter
    {.code = "2", .label = "cfgt17_051"},                    // Fuel level
    {.code = "3", .label = "cfgt17_052"},                    // Fuel temperature
    {.code = "4", .label = "cfgt17_053"},                    // Fuel sensor frequency
    {.code = "5", .label = "cfgt17_054"},                    // Temperature
    {.code = "6", .label = "cfgt17_055"},                    // Humidity
    {.code = "7", .label = "cfgt17_056", .format = "%1 X"},  // Linear acceleration X
    {.code = "8", .label = "cfgt17_056", .format = "%1 Y"},  // Linear acceleration Y
    {.code = "9", .label = "cfgt17_056", .format = "%1 Z"},  // Linear acceleration Z
};
// clang-format on

inline constexpr int kMostNumbers = 32;
struct NumberText
{
    char code[3];
    char label[3]; // right-justified
};
inline constexpr auto kNumberTexts = [] {
    std::array<NumberText, kMostNumbers> texts{};
    for (int number = 1; number <= kMostNumbers; ++number) {
        const char tens = static_cast<char>('0' + number / 10);
        const char ones = static_cast<char>('0' + number % 10);
        texts[number - 1] = number < 10 ? NumberText{{ones, 0, 0}, {' ', ones, 0}}
                                        : NumberText{{tens, ones, 0}, {tens, ones, 0}};
    }
    return texts;
}();
inline constexpr auto kNumbers = [] {
    std::array<Code, kMostNumbers> codes{};
    for (std::size_t i = 0; i < codes.size(); ++i)
        codes[i] = {.code = kNumberTexts[i].code, .label = kNumberTexts[i].label};
    return codes;
}();

inline constexpr Heading kSensor{"cfgt17_024", "%1 %2"};               // Sensor
inline constexpr Heading kCondition{"cfgt17_057", "%1: %3", &kSensor}; // Conditions for taking messages
inline constexpr Heading kValue{"cfgt17_066", "%1: %3", &kSensor};     // Values in the message

constexpr Number byte(const char* key, const char* widget, const char* caption)
{
    return integer(key, 0).range(0, 255).in(widget).caption(caption);
}

constexpr Number type(int loadDefault, const char* widget)
{
    return hexadecimal("type", loadDefault).range(0, 255).in(widget).caption("cfgt17_060");
}

constexpr Text messageMask(const char* widget)
{
    return text("mask", "").upTo(32).in(widget).caption("cfgt17_062");
}

constexpr Number rowGroup(const char* check, const char* widget)
{
    return integer("group", 0)
        .range(1, 4)
        .offAtZero(check)
        .switchedOnTo(1)
        .onUnlessZero()
        .in(widget)
        .caption("cfgt17_058");
}

// The first condition is always on and joins nothing.
constexpr auto firstCondition(When chosen)
{
    // clang-format off
    return numbered(rowsOf(
        group("U%1C1").onlyWhen(chosen), kCondition,
        integer("group", 1).range(1, 4).in("U%1/spinBox_Condition_Group_1").caption("cfgt17_058"),  // Group
        constant("oper", "0"),
        type(0xFF, "U%1/spinBox_Condition_Type_1"),
        byte("offset", "U%1/spinBox_Condition_Displacement_1", "cfgt17_061"),                       // Offset, B
        messageMask("U%1/lineEdit_Condition_Mask_1")),
        1);
    // clang-format on
}

constexpr auto laterCondition(int number, When chosen)
{
    // clang-format off
    return numbered(rowsOf(
        group("U%1C%2").onlyWhen(chosen), kCondition,
        rowGroup("checkBox_Condition_Use_%2", "U%1/spinBox_Condition_Group_%2"),
        choice("oper", kOperators, "0")            .byNumber().unknownIs("0").in("U%1/comboBox_Condition_Operator_%2").caption("cfgt17_059"),  // Operator
        type(0xFF, "U%1/spinBox_Condition_Type_%2").resetTo(0),
        byte("offset", "U%1/spinBox_Condition_Displacement_%2", "cfgt17_061"),                                                                 // Offset, B
        messageMask("U%1/lineEdit_Condition_Mask_%2")),
        number);
    // clang-format on
}

constexpr auto valueRows(When chosen)
{
    return repeat<kUniversalValues>([=](int) {
        // clang-format off
        return rowsOf(
            group("U%1P%2").onlyWhen(chosen), kValue,
            rowGroup("checkBox_Parameters_Use_%2", "U%1/spinBox_Parameters_Group_%2"),
            type(0, "U%1/spinBox_Parameters_Type_%2"),
            byte("offset", "U%1/spinBox_Parameters_Displacement_%2", "cfgt17_061"),                                                       // Offset, B
            choice("prm", kElementKinds, "").resetTo("1b").unknownIs("").noItemIs("").in("U%1/comboBox_Parameters_Dimension_%2").caption("cfgt17_033"),  // Data type
            choice("be", kByteOrders, "0").byNumber().unknownIs("0").in("U%1/comboBox_Parameters_ByteOrder_%2") .caption("cfgt17_067"),   // Byte order
            choice("stor", kTargets, "0") .byNumber().unknownIs("0").in("U%1/comboBox_Parameters_SensorType_%2").caption("cfgt17_040"),   // Send as
            choice("idx", kNumbers, "1").byNumber().offering("").noItemIs("0").ifUnoffered(Unoffered::KeepsValue).resetTo("0")
                                                                    .in("U%1/comboBox_Parameters_Index_%2")     .caption("cfgt17_068"),   // Number
            integer("mux", 1)             .range(0, 65535)          .in("U%1/spinBox_Parameters_Multiplier_%2") .caption("cfgt17_069"),   // Multiplier
            integer("div", 1)             .range(1, 65535)          .in("U%1/spinBox_Parameters_Divider_%2")    .caption("cfgt17_070"),   // Divisor
            integer("shift", 0)           .range(-32768, 32767)     .in("U%1/spinBox_Parameters_Amendment_%2")  .caption("cfgt17_071"));  // Correction
        // clang-format on
    });
}

// The elements are there while `chosen` holds.
constexpr auto rows(When chosen)
{
    return rowsOf(firstCondition(chosen), laterCondition(2, chosen), laterCondition(3, chosen),
                  laterCondition(4, chosen), valueRows(chosen));
}

// A row that is switched on takes any type of message; one that is switched off holds nothing.
constexpr auto laterConditionSets(int number)
{
    constexpr When on = when("U%1C%2/group");
    constexpr When off = unless("U%1C%2/group");
    // clang-format off
    return numbered(rulesOf(
        onEdit(on,  "U%1C%2/type",   "FF").onset(),
        onEdit(on,  "U%1C%2/offset", "0").onset(),
        onEdit(off, "U%1C%2/type",   "00"),
        onEdit(off, "U%1C%2/offset", "0"),
        onEdit(off, "U%1C%2/mask",   ""),
        onEdit(off, "U%1C%2/oper",   "0")),
        number);
    // clang-format on
}

// clang-format off
constexpr auto kSets = rulesOf(
    laterConditionSets(2),
    laterConditionSets(3),
    laterConditionSets(4),
    repeat<kUniversalValues>([](int) {
        constexpr When on = when("U%1P%2/group");
        constexpr When off = unless("U%1P%2/group");
        return rulesOf(
            onEdit(on,  "U%1P%2/type",   "FF").onset(),
            onEdit(on,  "U%1P%2/stor",   "1").onset(),
            onEdit(off, "U%1P%2/stor",   "0"),
            onEdit(off, "U%1P%2/type",   "00"),
            onEdit(off, "U%1P%2/offset", "0"),
            onEdit(off, "U%1P%2/prm",    "1b"),
            onEdit(off, "U%1P%2/be",     "0"),
            onEdit(off, "U%1P%2/mux",    "1"),
            onEdit(off, "U%1P%2/div",    "1"),
            onEdit(off, "U%1P%2/shift",  "0"));
    }));
// clang-format on

constexpr RangeWhen numbersOf(const char* targets, const char* numbers)
{
    return {
        .when = when("U%1P%2/stor", targets), .path = "U%1P%2/idx", .offers = numbers, .startsOver = true};
}

constexpr auto kRanges = repeat<kUniversalValues>([](int) {
    // clang-format off
    return rulesOf(
        numbersOf("0",     ""),
        numbersOf("1",
                  "1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25|26|27|28|"
                  "29|30|31|32"),
        numbersOf("2|3|4", "1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16"),
        numbersOf("5",     "1|2|3|4|5|6|7|8"),
        numbersOf("6",     "1|2|3|4"),
        numbersOf("7|8|9", "1"));
    // clang-format on
});

// One number of a kind goes to one row of the form.
constexpr auto kExclusives = repeat<kUniversalValues>([](int) {
    return ExclusiveChoice{.path = "U%1P%2/idx",
                           .when = when("U%1P%2/group"),
                           .also = when("U%1P%2/stor", "1|2|3|4|5|6"),
                           .list = "U%1",
                           .holder = "U%1P%2",
                           .split = "U%1P%2/stor"};
});

constexpr auto laterConditionEnables(int number)
{
    // clang-format off
    return numbered(rulesOf(
        enable({"U%1", "comboBox_Condition_Operator_%2 spinBox_Condition_Type_%2 "
                       "spinBox_Condition_Displacement_%2 lineEdit_Condition_Mask_%2"},
               when("U%1C%2/group")),
        show({"U%1", "comboBox_Condition_Operator_%2"}, when("U%1C%2/group"))),
        number);
    // clang-format on
}

// An operator joins a condition to an earlier one of its group.
constexpr Enable joins(const char* list, When first, When second = {}, When third = {})
{
    return enableAny({"U%1", list}, first, second, third).showing();
}

// clang-format off
constexpr auto kEnables = rulesOf(
    laterConditionEnables(2),
    laterConditionEnables(3),
    laterConditionEnables(4),
    joins("comboBox_Condition_Operator_2", whenSame("U%1C2/group", "U%1C1")),
    joins("comboBox_Condition_Operator_3", whenSame("U%1C3/group", "U%1C1"), whenSame("U%1C3/group", "U%1C2")),
    joins("comboBox_Condition_Operator_4", whenSame("U%1C4/group", "U%1C1"), whenSame("U%1C4/group", "U%1C2"), whenSame("U%1C4/group", "U%1C3")),
    repeat<kUniversalValues>([](int) {
        return enable(
            {"U%1",
             "spinBox_Parameters_Type_%2 spinBox_Parameters_Displacement_%2 comboBox_Parameters_Dimension_%2 "
             "comboBox_Parameters_ByteOrder_%2 comboBox_Parameters_SensorType_%2 "
             "comboBox_Parameters_Index_%2 spinBox_Parameters_Multiplier_%2 spinBox_Parameters_Divider_%2 "
             "spinBox_Parameters_Amendment_%2"},
            when("U%1P%2/group"));
    }));
// clang-format on

} // namespace universal

} // namespace vlk
