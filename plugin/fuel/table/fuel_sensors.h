#pragma once

// The fuel sensors: what kinds there are and how a table of each is edited and drawn, which sensors the
// calibration window has room for, under which tabs, and where the answer of the live readings has them.

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace vlk {

inline QString fuelWord(const char* key)
{
    return QCoreApplication::translate("vlk", key);
}

// What a cell can hold: numbers from 0.
struct FuelLimit
{
    double top;
    int decimals;
};

inline constexpr FuelLimit kVolumeLimit{5000, 1};
inline constexpr FuelLimit kVoltsLimit{35, 2};
inline constexpr FuelLimit kCodeLimit{65535, 0};

struct FuelKind
{
    enum class Editor : std::uint8_t { None, Decimal, Integer };

    const char* valueCaption; // keys
    const char* axisCaption;
    Editor editor;     // of the value column: volts or codes
    bool millivolts;   // what the tracker says is in millivolts, and is shown in volts
    int leftMargin;    // pixels, of the graph
    int graphDecimals; // of its values
    int steady;        // by how much the reading of a level at rest may differ from the one before
};

inline constexpr FuelKind kFuelKinds[] = {
    {"cfgt6_042", "cfgt6_043", FuelKind::Editor::Decimal, true, 60, 2, 20},
    {"cfgt6_044", "cfgt6_044", FuelKind::Editor::Integer, false, 80, 0, 8},
    {"cfgt6_045", "cfgt6_045", FuelKind::Editor::Integer, false, 80, 0, 8},
    {"cfgt6_041", "cfgt6_041", FuelKind::Editor::None, false, 80, 0, 8}, // any other number
};

constexpr const FuelKind& fuelKind(int kind)
{
    constexpr int last = static_cast<int>(std::size(kFuelKinds)) - 1;
    return kFuelKinds[kind >= 0 && kind < last ? kind : last];
}

constexpr const FuelLimit& valueLimit(const FuelKind& kind)
{
    return kind.editor == FuelKind::Editor::Decimal ? kVoltsLimit : kCodeLimit;
}

// A tab of the window: a tab widget of its own for the sensors of the group, or the one sensor itself.
struct FuelGroup
{
    char letter;           // with which the names of its sensors begin
    const char* title;     // key of the group's tab, null where the sensor is the tab
    const char* format;    // of that title
    const char* tabTitle;  // key of a sensor's tab
    const char* tabFormat; // of that title and the sensor's name
};

inline constexpr FuelGroup kFuelGroups[] = {
    {'A', "tmiw_121", "%1", "tmiw_122", "%1 %2"},
    {'R', nullptr, "", "tmiw_124", "%1 RS-232"},
    {'D', "tmiw_123", "%1 RS-485", "tmiw_124", "%1 RS-485 %2"},
    {'F', "tmiw_125", "%1", "tmiw_126", "%1 %2"},
};

struct FuelSensor
{
    const char* name; // in files
    int kind;
    int liveAt;  // offset of its value in the answer of the live readings
    bool fitted; // on this model
};

inline constexpr FuelSensor kFuelSensors[] = {
    {"A1", 0, 15, false}, {"A2", 0, 17, false}, {"A3", 0, 19, true},  {"R", 1, 22, false},
    {"D1", 1, 25, true},  {"D2", 1, 28, true},  {"D3", 1, 31, true},  {"D4", 1, 34, true},
    {"D5", 1, 37, true},  {"D6", 1, 40, true},  {"F1", 0, 11, false}, {"F2", 0, 13, false},
};

constexpr int kFuelSensorCount = static_cast<int>(std::size(kFuelSensors));
constexpr int kFuelGroupCount = static_cast<int>(std::size(kFuelGroups));

// Index of the group that a letter names, -1 for none.
constexpr int fuelGroupOf(char letter)
{
    const auto* found = std::ranges::find_if(
        kFuelGroups, [letter](const FuelGroup& group) { return group.letter == letter; });
    return found == std::end(kFuelGroups) ? -1 : static_cast<int>(found - std::begin(kFuelGroups));
}

} // namespace vlk
