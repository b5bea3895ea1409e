#pragma once

// What people call settings whose captions leave it out, as when the title of a slider's zone says it. They
// are looked for and shown nowhere.

namespace vlk::review {

struct SearchWords
{
    const char* path; // in the file, without all digits: of all lines, sensors and servers alike
    const char* text; // translation key
};

inline constexpr SearchWords kSearchWords[] = {
    {"TEMPSENS/SENS/min", "rev_230"},       {"TEMPSENS/SENS/max", "rev_239"},
    {"SYSTEM/PWRSENS/alarmLvl", "rev_231"}, {"SYSTEM/PWRSENS/restoreLvl", "rev_231"},
    {"SENSORS/IN/normState", "rev_232"},    {"OUTPUTS/LINE/mode", "rev_233"},
    {"TRANS/AP/name", "rev_234"},           {"TRANS/SRV/addr", "rev_235"},
    {"TRACK/POINTS/maxSpeed", "rev_236"},   {"BLUETOOTH/GLOBAL/use", "rev_237"},
    {"BLUETOOTH/SENS/type", "rev_238"},     {"RS/OPTIONS/owner", "rev_302"},
    {"TRACK/POINTS/moveTimer", "rev_301"},  {"SYSTEM/TIME/zone", "rev_303"},
    {"TRANS/SRV/objID", "rev_304"},         {"OUTPUTS/LINE/safeBlock", "rev_233"},
    {"TRANS/AP/operator", "rev_234"},
};

} // namespace vlk::review
