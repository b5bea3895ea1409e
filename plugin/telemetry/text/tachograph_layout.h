#pragma once

// Where the values of a tachograph answer stand and what they are, in the order of the lines. Offsets count
// from the first byte of the answer; numbers are little-endian.

#include <QtGlobal>

#include <span>

namespace vlk::tachograph {

inline constexpr int kKindAt = 6;
inline constexpr int kStatusAt = 7;

inline constexpr quint8 kStatusOk = 0x00;
inline constexpr quint8 kStatusUnavailable = 0x20;
inline constexpr quint8 kStatusNoLink = 0x30;

enum class Shape : quint8 { Number, Time, Text, State };
enum class Part : quint8 { Whole, LowBits, HighBits }; // of a byte, four bits each
enum class Numbered : quint8 { No, Plain, WithSign };  // "Caption 1", "Caption № 1"

// What the values of a state mean; others are shown as numbers.
struct StateTable
{
    const char* title;
    const char* values[4];
};

inline constexpr StateTable kActivity = {"tmiw_055", {"tmiw_056", "tmiw_058", "tmiw_057", "tmiw_059"}};
inline constexpr StateTable kDrivingTime = {"tmiw_060", {"tmiw_061", "tmiw_062", "tmiw_063", "tmiw_064"}};
inline constexpr StateTable kCard = {"tmiw_065", {"tmiw_066", "tmiw_067", "tmiw_068", "tmiw_069"}};

struct Field
{
    quint8 at;
    quint8 width;
    Shape shape = Shape::Number;
    Part part = Part::Whole;
    Numbered numbered = Numbered::No;
    quint8 number = 0;
    bool colon = true;
    const char* key = nullptr;
    const StateTable* states = nullptr;
};

constexpr Field numberAt(quint8 at, quint8 width, const char* key, Part part = Part::Whole)
{
    return {.at = at, .width = width, .part = part, .key = key};
}

constexpr Field timeAt(quint8 at, const char* key)
{
    return {.at = at, .width = 4, .shape = Shape::Time, .key = key};
}

constexpr Field textAt(quint8 at, quint8 width, const char* key)
{
    return {.at = at, .width = width, .shape = Shape::Text, .key = key};
}

constexpr Field stateAt(quint8 at, Part part, const StateTable& states, quint8 driver = 0)
{
    return {.at = at,
            .width = 1,
            .shape = Shape::State,
            .part = part,
            .numbered = driver == 0 ? Numbered::No : Numbered::WithSign,
            .number = driver,
            .states = &states};
}

constexpr Field numbered(Field field, quint8 number)
{
    field.numbered = Numbered::Plain;
    field.number = number;
    return field;
}

constexpr Field withoutColon(Field field)
{
    field.colon = false;
    return field;
}

inline constexpr Field kTachographState[] = {
    timeAt(8, "tmiw_052"),
    numberAt(12, 1, "tmiw_053", Part::LowBits),
    numberAt(12, 1, "tmiw_054", Part::HighBits),
    stateAt(13, Part::LowBits, kActivity, 1),
    stateAt(13, Part::HighBits, kActivity, 2),
    stateAt(14, Part::LowBits, kDrivingTime, 1),
    stateAt(14, Part::HighBits, kCard, 1),
    stateAt(15, Part::LowBits, kDrivingTime, 2),
    stateAt(15, Part::HighBits, kCard, 2),
    withoutColon(numberAt(16, 4, "tmiw_070")),
    numberAt(20, 1, "tmiw_071"),
    numberAt(21, 2, "tmiw_072"),
    numberAt(23, 2, "tmiw_073"),
    numberAt(25, 2, "tmiw_074"),
    numberAt(27, 2, "tmiw_075"),
    numberAt(29, 2, "tmiw_076"),
    numberAt(31, 2, "tmiw_077"),
    numberAt(33, 2, "tmiw_078"),
    numberAt(35, 2, "tmiw_079"),
};

inline constexpr Field kDriverCard[] = {
    stateAt(8, Part::LowBits, kActivity),
    stateAt(8, Part::HighBits, kCard),
    numberAt(10, 1, "tmiw_081"),
    textAt(11, 16, "tmiw_082"),
    numberAt(27, 4, "tmiw_083"),
    numbered(numberAt(31, 1, "tmiw_084"), 1),
    numbered(numberAt(67, 1, "tmiw_084"), 2),
    numbered(numberAt(103, 1, "tmiw_084"), 3),
    numbered(numberAt(139, 1, "tmiw_084"), 4),
    numbered(textAt(32, 35, "tmiw_085"), 1),
    numbered(textAt(68, 35, "tmiw_085"), 2),
    numbered(textAt(104, 35, "tmiw_085"), 3),
    numbered(textAt(140, 35, "tmiw_085"), 4),
};

inline constexpr Field kTachographData[] = {
    textAt(8, 32, "tmiw_087"),   textAt(40, 17, "tmiw_088"),  numberAt(57, 1, "tmiw_089"),
    numberAt(58, 1, "tmiw_090"), textAt(59, 15, "tmiw_091"),  numberAt(74, 1, "tmiw_092"),
    timeAt(75, "tmiw_093"),      timeAt(79, "tmiw_094"),      timeAt(83, "tmiw_095"),
    textAt(87, 16, "tmiw_096"),  textAt(103, 16, "tmiw_097"),
};

struct QuestionLayout
{
    quint8 kinds[2];
    const char* statusKey;
    bool statusTellsKind; // as a number behind the key's text
    std::span<const Field> fields;
};

inline constexpr QuestionLayout kQuestionLayouts[] = {
    {{1, 1}, "tmiw_049", false, kTachographState},
    {{3, 4}, "tmiw_080", true, kDriverCard},
    {{5, 5}, "tmiw_086", false, kTachographData},
};

// The state of a file.
inline constexpr quint8 kFileKind = 0;
inline constexpr quint8 kFileReady = 0x00;
inline constexpr int kFileCountAt = 8;
inline constexpr int kFileNameAt = 12;
inline constexpr int kFileNameBytes = 72;

// A code that is not here is shown as a number alone.
struct FileState
{
    quint8 code;
    const char* key;
    const char* stop = ""; // behind each text
    const char* addition = nullptr;
};

inline constexpr FileState kFileStates[] = {
    {kFileReady, "tmiw_099", "."},
    {0x10, "tmiw_100", "."},
    {0x20, "tmiw_101"},
    {0x21, "tmiw_102"},
    {0x30, "tmiw_103"},
    {0x31, "tmiw_104"},
    {0x32, "tmiw_105"},
    {0x33, "tmiw_106"},
    {0x34, "tmiw_107"},
    {0x35, "tmiw_108"},
    {0x36, "tmiw_109"},
    {0x37, "tmiw_110"},
    {0x38, "tmiw_111"},
    {0x39, "tmiw_112"},
    {0x3A, "tmiw_113"},
    {0x3B, "tmiw_114"},
    {0x3C, "tmiw_115"},
    {0x70, "tmiw_116", ".", "tmiw_117"},
};

} // namespace vlk::tachograph
