#pragma once

// The settings of the RS page: the section RS485 with the device on the serial line, its owner, the line
// itself and one element a device. Only the element of the owner is in the file; what the other devices hold
// stays with the window.
//
// A device is a row of kRsOwners and a group of rows; what its type does to the line is in kRsLines.

#include "settings/settings_table.h"

namespace vlk {

// A device that can own the line. Choosing it sets the speed, no parity and one stop bit.
struct RsOwner
{
    const char* code;  // in the file; empty: no device
    const char* label; // text or translation key
    const char* speed;
    bool needsConverter; // a notice says so
};

inline constexpr RsOwner kRsOwners[] = {
    {"", "cfgt6_006", "19200", false},     {"FLDS", "cfgt6_007", "19200", false},
    {"CNLG", "CAN-LOG", "9600", true},     {"CFMS", "CANFMS", "9600", true},
    {"DTCN", "DTA-CAN", "19200", false},   {"TPMS", "cfgt6_009", "9600", true},
    {"HRPS", "cfgt6_010", "38400", true},  {"NMSP", "cfgt6_011", "19200", true},
    {"REFR", "cfgt6_012", "9600", true},   {"REPS", "cfgt6_013", "19200", false},
    {"DDU", "cfgt6_015", "19200", false},  {"TACH", "cfgt6_016", "115200", false},
    {"MDBS", "cfgt6_017", "9600", false},  {"RFID", "cfgt6_018", "19200", false},
    {"PCNT", "cfgt6_019", "19200", false}, {"ALCO", "cfgt6_021", "19200", true},
};

// A type of a device that asks for a speed of its own, again without parity and with one stop bit.
struct RsLine
{
    const char* owner;
    const char* path; // of the type, below the section
    const char* type;
    const char* speed;
};

inline constexpr RsLine kRsLines[] = {
    {"HRPS", "HRPS/type", "0", "38400"},        {"REFR", "REFR/type", "0", "9600"},
    {"TACH", "TACH/type", "ATOL", "115200"},    {"TACH", "TACH/type", "STRH", "19200"},
    {"TACH", "TACH/type", "MERK", "115200"},    {"TACH", "TACH/type", "KONT", "9600"},
    {"TPMS", "TPMS/type", "PRESSPRO", "38400"}, {"TPMS", "TPMS/type", "BRDGESTN", "38400"},
    {"TPMS", "TPMS/type", "TM508", "9600"},     {"TPMS", "TPMS/type", "TPMS613", "19200"},
    {"TPMS", "TPMS/type", "TD18", "19200"},
};

inline constexpr int kRsFuelSensors = 16;
inline constexpr int kRsCounters = 7;
inline constexpr int kRsDoors = 6;

extern const SettingsTable kRsSettings;

} // namespace vlk
