#pragma once

// The rows of a record's own position, which the main tab and the production page show alike: the fix, then
// what it says. Row is whatever starts with the value's object name, its caption's key and its item.

#include "telemetry/text/item.h"

#include <array>

namespace vlk {

template <class Row>
inline constexpr std::array<Row, 2> kFixRows = {{
    {"label_Navi_State_Value", "tmift1_027", item("StateNGauge.0")},
    {"label_Navi_Valid_Value", "tmift1_030", item("StateNGauge.1")},
}};

template <class Row>
inline constexpr std::array<Row, 8> kPositionRows = {{
    {"label_Navi_Count_Value", "tmift1_028", item("StateNGauge.satellites")},
    {"label_Navi_Date_Value", "tmift1_029", item("LastTime")},
    {"label_Navi_Lat_Value", "tmift1_031", item("Latitude")},
    {"label_Navi_Lon_Value", "tmift1_032", item("Longitude")},
    {"label_Navi_Alt_Value", "tmift1_033", item("Altitude")},
    {"label_Navi_Speed_Value", "tmift1_034", item("Speed")},
    {"label_Navi_Course_Value", "tmift1_035", item("Course")},
    {"label_Navi_Way_Value", "tmift1_036", item("Run")},
}};

} // namespace vlk
