#pragma once

// What people call settings whose captions leave it out, as when the title of a slider's zone says it. They
// are looked for and shown nowhere.

namespace vlk::review {

struct SearchWords
{
    // In the file, without all digits: of all lines, sensors and servers alike; of a part of a mask with the
    // name of its widget behind it. A section alone: of all its settings.
    const char* path;
    const char* text; // translation key of what it is called, by commas
};

inline constexpr SearchWords kSearchWords[] = {
    {"TRANS/OBJECT/name", "find_001"},
    {"TRANS/SRV/addr", "find_002"},
    {"TRANS/SRV/protocol", "find_003"},
    {"TRANS/SRV/objID", "find_004"},
    {"TRANS/AP/operator", "find_005"},
    {"TRANS/AP/name", "find_006"},
    {"TRANS/AP/pin", "find_007"},
    {"TRANS/RULES/pingTimer", "find_008"},
    {"TRANS/RULES/cnctTimer", "find_009"},
    {"TRANS/ROAMSIM/mode", "find_010"},
    {"TRACK/POINTS/maxSpeed", "find_011"},
    {"TRACK/POINTS/angle", "find_012"},
    {"TRACK/POINTS/moveTimer", "find_013"},
    {"TRACK/POINTS/stopTimer", "find_014"},
    {"TRACK/COORDAVER/mode", "find_015"},
    {"SYSTEM/PASS/SMS", "find_016"},
    {"SYSTEM/TIME/zone", "find_017"},
    {"SYSTEM/TIME/DST", "find_018"},
    {"SYSTEM/PWRSENS/alarmLvl", "find_019"},
    {"SYSTEM/PWRSENS/restoreLvl", "find_020"},
    {"RS/OPTIONS/owner", "find_021"},
    {"RS/OPTIONS/boudrate", "find_022"},
    {"RS/RFID/type", "find_023"},
    {"RS/FS/address", "find_024"},
    {"RS/FS/filterMode", "find_025"},
    {"TEMPSENS/SENS/min", "find_026"},
    {"TEMPSENS/SENS/max", "find_027"},
    {"SENSORS/IN/normState", "find_028"},
    {"SENSORS/IN/ign", "find_029"},
    {"OUTPUTS/LINE/mode", "find_030"},
    {"OUTPUTS/LINE/safeBlock", "find_030"},
    {"BLUETOOTH", "find_031"},
    {"BLUETOOTH/GLOBAL/use", "find_031"},
    {"BLUETOOTH/SENS/type", "find_032"},
    {"BLUETOOTH/SENS/macaddr", "find_033"},
    {"PROTOCOL/ZETA/mask/checkBox_Run", "find_034"},
};

} // namespace vlk::review
