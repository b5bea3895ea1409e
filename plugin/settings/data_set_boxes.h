#pragma once

// The boxes of the data set: each chooses one or several fields of the record, named by their elements
// (field_catalogue.h); a name that the catalogue lacks does not compile. Tables: the groups of boxes with
// their places, and the boxes in the order of the tabs.
//
// A box that this tracker does not show counts like any other: it keeps what a file says of it.

#include "catalogue/field_catalogue.h"
#include "settings/settings_table.h"

#include <initializer_list>

namespace vlk {

enum class DataSetTab : std::uint8_t { Main, Navi, Rs, Accel, More };

// The parts of the mask, each with its own protocol version.
enum class MaskVersion : std::uint8_t { Zeta10, Zeta20, Zeta30 };

constexpr MaskVersion versionOf(int position)
{
    return position < kZeta10Count         ? MaskVersion::Zeta10
           : position < kEarlierFieldCount ? MaskVersion::Zeta20
                                           : MaskVersion::Zeta30;
}

struct DataSetBox
{
    DataSetTab tab = DataSetTab::Main;
    const char* group = ""; // object name of the group that it stands in
    bool shown = true;
    MaskField field;

    constexpr DataSetBox hidden() const
    {
        DataSetBox box = *this;
        box.shown = false;
        return box;
    }
};

// A group of boxes and its place in the grid of the tab.
struct DataSetGroup
{
    const char* name;
    const char* title; // null: the tab sets it
    int row;
    int column;
    int rows;
    DataSetTab tab;
    // Boxes that differ in their numbers stand below each other, each kind in a column of its own.
    bool inColumns = false;
};

namespace data_set {

constexpr DataSetBox box(const char* widget, std::initializer_list<int> fields, const char* caption)
{
    DataSetBox made{.field = {.widget = widget, .caption = caption}};
    for (const int field : fields)
        made.field.positions[made.field.count++] = static_cast<std::uint8_t>(field);
    return made;
}

constexpr DataSetBox box(const char* widget, int field, const char* caption)
{
    return box(widget, std::initializer_list<int>{field}, caption);
}

// Every record has it.
constexpr DataSetBox alwaysOn(const char* widget, int field, const char* caption)
{
    DataSetBox made = box(widget, field, caption);
    made.field.always = true;
    return made;
}

// Boxes that differ in their numbers, `from` and on, with fields that follow each other. `shown`: the last
// number on show.
template <int count>
constexpr std::array<DataSetBox, count> boxes(const char* widget, int from, int firstField,
                                              const char* caption, const char* format, int shown = 0)
{
    std::array<DataSetBox, count> all{};
    for (int i = 0; i < count; ++i) {
        DataSetBox& made = all[static_cast<std::size_t>(i)];
        made = box(widget, firstField + i, caption);
        made.field.format = format;
        made.field.number = static_cast<std::uint8_t>(from + i);
        made.shown = from + i <= shown;
    }
    return all;
}

// With a second field each, in a later part of the mask; either of the two switches the box on.
template <std::size_t count>
constexpr std::array<DataSetBox, count> orAt(std::array<DataSetBox, count> all, int firstField)
{
    for (DataSetBox& made : all) {
        made.field.positions[made.field.count++] = static_cast<std::uint8_t>(firstField++);
        made.field.anyReads = true;
    }
    return all;
}

template <class... Boxes>
constexpr auto in(DataSetTab tab, const char* group, const Boxes&... boxes)
{
    auto all = joined(boxes...);
    for (DataSetBox& made : all) {
        made.tab = tab;
        made.group = group;
    }
    return all;
}

template <class... Boxes>
constexpr auto hidden(DataSetTab tab, const char* group, const Boxes&... boxes)
{
    auto all = in(tab, group, boxes...);
    for (DataSetBox& made : all)
        made.shown = false;
    return all;
}

constexpr const char* kTyres = "cfgt2f_130"; // of 5 and more, but for those that end in 2 to 4
constexpr const char* kTyresFew = "cfgt2f_129";
// clang-format off
inline constexpr Code kTyreItems[] = {
    {.code = "0000", .label = "cfgt2f_128"},  // none
    {.code = "0100", .label = kTyresFew, .format = "4 %1"},
    {.code = "1100", .label = kTyres,    .format = "6 %1"},
    {.code = "0010", .label = kTyres,    .format = "8 %1"},
    {.code = "1010", .label = kTyres,    .format = "10 %1"},
    {.code = "0110", .label = kTyres,    .format = "12 %1"},
    {.code = "1110", .label = kTyres,    .format = "14 %1"},
    {.code = "0001", .label = kTyres,    .format = "16 %1"},
    {.code = "1001", .label = kTyres,    .format = "18 %1"},
    {.code = "0101", .label = kTyres,    .format = "20 %1"},
    {.code = "1101", .label = kTyresFew, .format = "22 %1"},
    {.code = "0011", .label = kTyresFew, .format = "24 %1"},
    {.code = "1011", .label = kTyres,    .format = "26 %1"},
    {.code = "0111", .label = kTyres,    .format = "28 %1"},
    {.code = "1111", .label = kTyres,    .format = "30 %1"},
};
// clang-format on

constexpr DataSetBox tyres()
{
    DataSetBox list =
        box("comboBox_Tires",
            {field("TiresNum1"), field("TiresNum3"), field("TiresNum7"), field("TiresNum15")}, "cfgt2f_127");
    list.field.items = kTyreItems;
    return list;
}

} // namespace data_set

// clang-format off
inline constexpr DataSetGroup kDataSetGroups[] = {
    {"groupBox_Main",          "cfgt2f_002", 0, 0, 3, DataSetTab::Main},        // Tracker
    {"groupBox_Imp",           "cfgt2f_016", 0, 1, 1, DataSetTab::Main},        // Pulse-counting input
    {"groupBox_Temp",          "cfgt2f_021", 1, 1, 1, DataSetTab::Main},        // Temperature sensors
    {"groupBox_Ain",           "cfgt2f_024", 2, 1, 1, DataSetTab::Main},        // Analogue inputs
    {"groupBox_Frequency",     "cfgt2f_017", 3, 0, 1, DataSetTab::Main},        // Frequency input
    {"groupBox_Motochas",      "cfgt2f_018", 3, 1, 1, DataSetTab::Main},        // Engine hours
    {"groupBox_Navi",          "cfgt2f_027", 0, 0, 3, DataSetTab::Navi},        // Position and motion
    {"groupBox_Accuracy",      "cfgt2f_038", 0, 1, 1, DataSetTab::Navi},        // Satellites and accuracy
    {"groupBox_LBS",           "cfgt2f_055", 1, 1, 1, DataSetTab::Navi},        // Position without satellites
    {"groupBox_Geozone",       "cfgt2f_048", 2, 1, 1, DataSetTab::Navi},        // Geofences
    {"groupBox_MNavi",         "cfgt2f_041", 3, 0, 1, DataSetTab::Navi},        // High-precision receiver
    {"groupBox_RS232",         "cfgt2f_054", 0, 0, 1, DataSetTab::Rs},          // RS-232 level sensor
    {"groupBox_RS485",         nullptr,      1, 0, 1, DataSetTab::Rs,   true},
    {"groupBox_Accel",         "cfgt2f_082", 0, 0, 1, DataSetTab::Accel},       // Accelerometer
    {"groupBox_EcoDrive",      "cfgt2f_083", 1, 0, 1, DataSetTab::Accel},       // Driving style
    {"groupBox_HighPrecision", "cfgt2f_125", 0, 0, 1, DataSetTab::More, true},  // High-precision temperature and humidity sensors
    {"groupBox_Passager",      "cfgt2f_132", 1, 0, 1, DataSetTab::More},        // Passenger counters
    {"groupBox_Camera",        "cfgt2f_134", 2, 0, 1, DataSetTab::More},        // Camera
    {"groupBox_VAccelAxels",   "cfgt2f_135", 3, 0, 1, DataSetTab::More},        // External tilt sensor
    {"groupBox_Disp",          "cfgt2f_136", 4, 0, 1, DataSetTab::More},        // Driver display
    {"groupBox_Ainf",          "cfgt2f_139", 5, 0, 1, DataSetTab::More},        // Announcer
    {"groupBox_Tires",         "cfgt2f_127", 6, 0, 1, DataSetTab::More},        // Tyre pressure
};

inline constexpr auto kDataSetBoxes = [] {
    using namespace data_set;
    using enum DataSetTab;
    return joined(
        in(Main, "groupBox_Main",
            alwaysOn("checkBox_NumPage",     field("NumPage"),      "cfgt2f_003"),
            alwaysOn("checkBox_Code",        field("Code"),         "cfgt2f_004"),
            alwaysOn("checkBox_Time",        field("Time"),         "cfgt2f_005"),
            box("checkBox_State",            field("State"),        "cfgt2f_006"),   // Operating mode and power source
            box("checkBox_State_2",          field("State2"),       "cfgt2f_007"),   // Case opening and complex events
            box("checkBox_Module",           field("Module1"),      "cfgt2f_008"),   // GSM, navigation, SIM card, engine
            box("checkBox_Module_2",         field("Module2"),      "cfgt2f_009"),   // Jamming, accelerometer, Bluetooth, Wi-Fi
            box("checkBox_Module_3",         field("Module3"),      "cfgt2f_010"),   // Iridium and additional modem
            box("checkBox_GSM",              field("GSM"),          "cfgt2f_011"),
            box("checkBox_GSM_State",        field("StateCnct"),    "cfgt2f_012"),   // Connections to the servers
            box("checkBox_StateOut",         field("StateOut1"),    "cfgt2f_013"),
            boxes<1>("checkBox_StateOut_%1", 2, field("StateOut2"), "cfgt2f_013", "%1 %2"),
            box("checkBox_StateIn",          field("StateIn1"),     "cfgt2f_014"),
            boxes<1>("checkBox_StateIn_%1",  2, field("StateIn2"),  "cfgt2f_014", "%1 %2"),
            boxes<1>("checkBox_StateIn_%1",  3, field("StateIn3"),  "cfgt2f_014", "%1 %2"),
            box("checkBox_Power",            field("Power"),        "cfgt2f_015").hidden(),
            box("checkBox_Reserv",           field("Reserv"),       "cfgt2f_156")),  // Backup battery voltage
        hidden(Main, "groupBox_Imp",
            boxes<2>("checkBox_StateIn_Imp_%1", 1, field("StateIn_Imp1"), "cfgt2f_016", "%1 %2"),
            boxes<6>("checkBox_StateIn_Imp_%1", 3, field("StateIn_Imp3"), "cfgt2f_016", "%1 %2")),
        in(Main, "groupBox_Ain",
            boxes<2>("checkBox_StateU_Ain_%1", 1, field("StateU_Ain1"), "cfgt2f_023", "%1 AIN%2"),
            boxes<1>("checkBox_StateU_Ain_%1", 3, field("StateU_Ain3"), "cfgt2f_023", "%1 AIN%2", 3),
            boxes<5>("checkBox_StateU_Ain_%1", 4, field("StateU_Ain4"), "cfgt2f_023", "%1 AIN%2")),
        hidden(Main, "groupBox_Frequency",
            boxes<2>("checkBox_Frequency_%1", 1, field("Frequency1"), "cfgt2f_017", "%1 %2"),
            boxes<6>("checkBox_Frequency_%1", 3, field("Frequency3"), "cfgt2f_017", "%1 %2")),
        hidden(Main, "groupBox_Motochas",
            box("checkBox_Motochas",   field("Motochas"),        "cfgt2f_018"),
            box("checkBox_Motochas_2", field("MotochasLoadOff"), "cfgt2f_019"),
            box("checkBox_Motochas_3", field("MotochasLoadOn"),  "cfgt2f_020")),
        in(Main, "groupBox_Temp",
            boxes<8>("checkBox_Temp_%1", 1, field("Temp1"), "cfgt2f_022", "%1 T%2", 4)),

        in(Navi, "groupBox_Navi",
            box("checkBox_StateNGauge", field("StateNGauge"),                    "cfgt2f_028"), // Receiver state and satellites
            box("checkBox_LastTime",    field("LastTime"),                       "cfgt2f_029"),
            box("checkBox_Coord",       {field("Latitude"), field("Longitude")}, "cfgt2f_030"),
            box("checkBox_Altitude",    field("Altitude"),                       "cfgt2f_031"),
            box("checkBox_Speed",       field("Speed"),                          "cfgt2f_032"),
            box("checkBox_Course",      field("Course"),                         "cfgt2f_033"),
            box("checkBox_Run",         field("Run"),                            "cfgt2f_034"),
            box("checkBox_Way",         field("Way"),                            "cfgt2f_035"), // Last path segment
            box("checkBox_AllSeconds",  field("AllSeconds"),                     "cfgt2f_036"), // Segment interval
            box("checkBox_SecondsLast", field("SecondsLast"),                    "cfgt2f_037")), // Segment travel time
        in(Navi, "groupBox_Accuracy",
            box("checkBox_MNaviInfo",  field("NaviInfoGlonass"), "cfgt2f_039"),      // Satellites by system
            box("checkBox_MNaviError", field("NaviHDop"),        "cfgt2f_040")),     // HDOP and PDOP
        hidden(Navi, "groupBox_MNavi",
            box("checkBox_MNaviState",  field("NaviState"),    "cfgt2f_042"),        // High-precision receiver state
            box("checkBox_MNaviCoord",  field("NaviLatitude"), "cfgt2f_043"),
            box("checkBox_MNaviAlt",    field("NaviAltitude"), "cfgt2f_044"),
            box("checkBox_MNaviCourse", field("NaviCourse"),   "cfgt2f_045"),
            box("checkBox_MNaviSpeed",  field("NaviSpeed"),    "cfgt2f_046")),
        in(Navi, "groupBox_LBS",
            box("checkBox_LBS", field("LbsCellID"), "cfgt2f_047")),
        hidden(Navi, "groupBox_Geozone",
            box("checkBox_Geozone", field("GeozoneInfo"), "cfgt2f_048")),

        hidden(Rs, "groupBox_RS232",
            box("checkBox_RS232_Level", field("LevelRS232"), "cfgt2f_054")),
        in(Rs, "groupBox_RS485",
            orAt(boxes<6>("checkBox_RS485_Level_%1", 1, field("LevelRS485_1"), "cfgt2f_052", "%1 %2", 6),
                 field("TempRS485_1")),
            boxes<10>("checkBox_RS485_Level_%1",     7, field("LevelRS485_7"), "cfgt2f_052", "%1 %2"),
            boxes<16>("checkBox_RS485_Frequency_%1", 1, field("RS485Freq1"),   "cfgt2f_053", "%1 %2", 6)),

        in(Accel, "groupBox_Accel",
            box("checkBox_AccelDelta",  field("AccelDelta"),     "cfgt2f_084"),      // Time increment
            box("checkBox_AccelLinear", field("AccelLinearX"),   "cfgt2f_085").hidden(),
            box("checkBox_AccelModule", field("AccelModule"),    "cfgt2f_086"),      // Time above the acceleration threshold
            box("checkBox_Accel_1",     field("VAccelState"),    "cfgt2f_087"),      // Sensors SH1 to SH4
            box("checkBox_Accel_2",     field("VAccelVertical"), "cfgt2f_088").hidden(), // Tilt from the vertical
            box("checkBox_Accel_3",     field("VAccelLineTang"), "cfgt2f_089").hidden()), // Pitch and roll
        hidden(Accel, "groupBox_EcoDrive",
            box("checkBox_Accel_Drive_1", field("AccelAngularPlus"), "cfgt2f_090"),  // Largest acceleration, braking and sideways
            box("checkBox_Accel_Drive_2", field("EcoDrvAccelMax"),   "cfgt2f_091"),  // Largest vertical acceleration
            box("checkBox_Accel_Drive_3", field("EcoDrvSpeedMax"),   "cfgt2f_092"),  // Largest speed
            box("checkBox_Accel_Drive_4", field("EcoDrvSpeedState"), "cfgt2f_093"),  // Speed thresholds
            box("checkBox_Accel_Drive_5", field("EcoDrvAccel1"),     "cfgt2f_094")), // Acceleration thresholds

        hidden(More, "groupBox_Passager",
            boxes<8>("checkBox_PassDoor_%1", 1, field("Passager_1"), "cfgt2f_133", "%1 %2")),
        hidden(More, "groupBox_Camera",
            box("checkBox_CameraState", field("CameraState"), "cfgt2f_134")),
        hidden(More, "groupBox_VAccelAxels",
            box("checkBox_VAccelAxels", field("VAccelAxelsX"), "cfgt2f_135")),
        hidden(More, "groupBox_Disp",
            box("checkBox_DispCur",       field("DispCur"),       "cfgt2f_137"),     // Driver state
            box("checkBox_DispLastIndex", field("DispLastIndex"), "cfgt2f_138")),
        hidden(More, "groupBox_Ainf",
            box("checkBox_AinfState",     field("AinfState"),     "cfgt2f_140"),     // Announcer state
            box("checkBox_AinfGeozoneID", field("AinfGeozoneID"), "cfgt2f_141"),
            box("checkBox_AinfStopID",    field("AinfStopID"),    "cfgt2f_142"),
            box("checkBox_AinfRouteID",   field("AinfRouteID"),   "cfgt2f_143")),
        in(More, "groupBox_HighPrecision",
            boxes<4>("checkBox_HighPrecision_Temp_%1",     1, field("HPrecisionTemp1"),     "cfgt2f_126", "%1 %2", 4),
            boxes<4>("checkBox_HighPrecision_Humidity_%1", 1, field("HPrecisionHumidity1"), "cfgt2f_131", "%1 %2", 4)),
        hidden(More, "groupBox_Tires",
            tyres()));
}();
// clang-format on

} // namespace vlk
