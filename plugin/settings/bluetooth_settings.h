#pragma once

// The settings of the section BLUETOOTH: whether the tracker's Bluetooth is used, and four sensors with their
// type, address and name, each followed by the element of its type (bluetooth_sensor_types.h, and
// bluetooth_universal_rows.h for the universal one). Only the element of the type is in the file; what the
// other types of a sensor hold stays with the window.
//
// SENS1/form is the type whose form is on show. It follows SENS1/type, which the list offers and the file
// holds, but knows all types.

#include "settings/settings_table.h"

namespace vlk {

// Rows of the universal sensor.
inline constexpr int kUniversalConditions = 4;
inline constexpr int kUniversalValues = 8;

extern const SettingsTable kBluetoothSettings;

// The elements of the types alone, also of those that the list of types does not offer: that of SENS1/form
// for the first sensor, and so on. It lies over whatever the section holds.
extern const SettingsTable kBluetoothElements;

} // namespace vlk
