#pragma once

// Why a record was made. The words for a code are the text "wb_event_" and three digits.

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace tracker {

enum class EventCode : quint16 {
    Restart = 1,
    Timer = 2,
    Distance = 3,
    Course = 4,
    ParkedTimer = 5,
    OnRequest = 6,
    IgnitionOn = 10,
    IgnitionOff = 11,
    MovementStart = 12,
    MovementStop = 13,
    SpeedLimitExceeded = 14,
    Line1Triggered = 20, // the lines follow each other, restored behind triggered
    Line1Restored = 21,
    Line2Triggered = 22,
    Line2Restored = 23,
    Line3Triggered = 24,
    Line3Restored = 25,
    AnalogueChanged = 26,
    WeakShock = 30,
    StrongShock = 31,
    Movement = 32,
    Tilt = 33,
    SupplyLow = 34,
    SupplyRestored = 35,
    EngineStarted = 36,
    EngineStopped = 37,
    TemperatureLow = 38,
    TemperatureHigh = 39,
    FillingStart = 40,
    FillingEnd = 41,
    TemperatureRestored = 42,
    GuardOn = 50,
    GuardOff = 51,
    OutputOn = 52,
    OutputOff = 53,
    MileageSet = 54,
    ConfigurationChanged = 55,
    KeyTouched = 60,
    TagRead = 61,
};

constexpr quint16 kHighestNamedEvent = 999;

// The key of its words, whether there are such or not.
QByteArray eventKey(quint16 code);
// In the language of the application; an unknown code has words too, with its number.
QString eventText(quint16 code);

} // namespace tracker
