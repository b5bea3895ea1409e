#pragma once

// The elements of a record that say how much fuel there is, and what makes litres of them. A Bluetooth sensor
// stands in the record as one of the RS-485 levels.

#include "telemetry/text/item.h"

#include <QString>

#include <array>

namespace vlk {

enum class LevelKind : std::uint8_t { Volts, Code, Hertz, Can };

struct LevelSensor
{
    ItemIndex item;
    LevelKind kind;
    char letter;         // with which calibration tables name such sensors, 0 for none
    std::uint8_t number; // behind that letter, 0 for none
    // Where litres stand in place of percent, for Can.
    ItemIndex litres;

    std::string_view element() const { return kElements[kItems[item].element].name; }
    // "D1", as in calibration tables; empty where they have no name for it.
    QString tableName() const;
};

inline constexpr auto kLevelSensors = [] {
    std::array<LevelSensor, 35> sensors{};
    auto* next = sensors.begin();
    for (std::uint8_t n = 0; n < 8; ++n)
        *next++ = {item("StateU_Ain1") + n, LevelKind::Volts, 'A', static_cast<std::uint8_t>(n + 1), {}};
    *next++ = {item("LevelRS232"), LevelKind::Code, 'R', 0, {}};
    for (std::uint8_t n = 0; n < 16; ++n)
        *next++ = {item("LevelRS485_1") + n, LevelKind::Code, 'D', static_cast<std::uint8_t>(n + 1), {}};
    for (std::uint8_t n = 0; n < 8; ++n)
        *next++ = {item("Frequency1") + n, LevelKind::Hertz, 'F', static_cast<std::uint8_t>(n + 1), {}};
    *next++ = {item("CAN_FuelLevel.percent"), LevelKind::Can, 0, 0, item("CAN_FuelLevel.litres")};
    *next++ = {item("CAN_LevelFiltr.percent"), LevelKind::Can, 0, 0, item("CAN_LevelFiltr.litres")};
    return sensors;
}();

// Null where there is none.
const LevelSensor* levelSensorOfElement(const QString& element);
const LevelSensor* levelSensorOfTable(const QString& tableName);

// In the language on show, as the heading of its column; longer than the name of the element.
QString levelSensorCaption(const LevelSensor& sensor);

} // namespace vlk
