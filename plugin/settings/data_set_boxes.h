#pragma once

// The boxes of the data set: each chooses one or several fields of the record, by their positions in the mask
// (field_catalogue.h). Tables: the groups of boxes with their places, and the boxes in the order of the tabs.
// What a box adds to a record is the width of its fields in the catalogue.
//
// A box that this tracker does not show counts like any other: it keeps what a file says of it.

#include "catalogue/field_catalogue.h"
#include "settings/settings_table.h"

#include <initializer_list>

namespace vlk {

enum class DataSetTab : std::uint8_t { main, navi, rs, accel, more };

// The parts of the mask, each with its own protocol version.
enum class MaskVersion : std::uint8_t { zeta10, zeta20, zeta30 };

constexpr MaskVersion versionOf(int position)
{
    return position < kZeta10Count         ? MaskVersion::zeta10
           : position < kEarlierFieldCount ? MaskVersion::zeta20
                                           : MaskVersion::zeta30;
}

struct DataSetBox
{
    DataSetTab tab = DataSetTab::main;
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

// Bytes that a field of the mask adds to a record where `part` is what its positions hold.
constexpr int bytesOf(const MaskField& field, std::string_view part)
{
    int bytes = 0;
    for (std::size_t i = 0; i < field.count && i < part.size(); ++i)
        bytes += part[i] == '1' ? kFields[field.positions[i]].width : 0;
    return bytes;
}

namespace data_set {

constexpr MaskField fieldOf(const char* widget, std::initializer_list<int> positions, const char* caption)
{
    MaskField field{.widget = widget, .caption = caption};
    for (const int position : positions)
        field.positions[field.count++] = static_cast<std::uint8_t>(position);
    return field;
}

constexpr DataSetBox box(const char* widget, int position, const char* caption)
{
    return {.field = fieldOf(widget, {position}, caption)};
}

// Every record has it.
constexpr DataSetBox always(const char* widget, int position, const char* caption)
{
    DataSetBox made = box(widget, position, caption);
    made.field.always = true;
    return made;
}

// Boxes that differ in their numbers, `from` and on, at positions that follow each other. `shown`: the last
// number on show.
template <int count>
constexpr std::array<DataSetBox, count> boxes(const char* widget, int from, int position, const char* caption,
                                              const char* format, int shown = 0)
{
    std::array<DataSetBox, count> all{};
    for (int i = 0; i < count; ++i) {
        DataSetBox& made = all[static_cast<std::size_t>(i)];
        made.field = fieldOf(widget, {position + i}, caption);
        made.field.format = format;
        made.field.number = static_cast<std::uint8_t>(from + i);
        made.shown = from + i <= shown;
    }
    return all;
}

// With a second field, in a later part of the mask, that either of the two positions switches on.
template <std::size_t count>
constexpr std::array<DataSetBox, count> orAt(std::array<DataSetBox, count> all, int position)
{
    for (DataSetBox& made : all) {
        made.field.positions[made.field.count++] = static_cast<std::uint8_t>(position++);
        made.field.anyReads = true;
    }
    return all;
}

template <class... Boxes>
constexpr auto in(DataSetTab tab, const char* group, const Boxes&... boxes)
{
    auto all = tables::join(boxes...);
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
inline constexpr Code kTyreItems[] = {
    {.code = "0000", .label = "cfgt2f_128"},
    {.code = "0100", .label = kTyresFew, .format = "4 %1"},
    {.code = "1100", .label = kTyres, .format = "6 %1"},
    {.code = "0010", .label = kTyres, .format = "8 %1"},
    {.code = "1010", .label = kTyres, .format = "10 %1"},
    {.code = "0110", .label = kTyres, .format = "12 %1"},
    {.code = "1110", .label = kTyres, .format = "14 %1"},
    {.code = "0001", .label = kTyres, .format = "16 %1"},
    {.code = "1001", .label = kTyres, .format = "18 %1"},
    {.code = "0101", .label = kTyres, .format = "20 %1"},
    {.code = "1101", .label = kTyresFew, .format = "22 %1"},
    {.code = "0011", .label = kTyresFew, .format = "24 %1"},
    {.code = "1011", .label = kTyres, .format = "26 %1"},
    {.code = "0111", .label = kTyres, .format = "28 %1"},
    {.code = "1111", .label = kTyres, .format = "30 %1"},
};

constexpr DataSetBox tyres()
{
    DataSetBox list{.field = fieldOf("comboBox_Tires", {93, 94, 95, 96}, "cfgt2f_127")};
    list.field.items = kTyreItems;
    return list;
}

} // namespace data_set

inline constexpr DataSetGroup kDataSetGroups[] = {
    {"groupBox_Main", "cfgt2f_002", 0, 0, 3, DataSetTab::main},
    {"groupBox_Imp", "cfgt2f_016", 0, 1, 1, DataSetTab::main},
    {"groupBox_Temp", "cfgt2f_021", 1, 1, 1, DataSetTab::main},
    {"groupBox_Ain", "cfgt2f_024", 2, 1, 1, DataSetTab::main},
    {"groupBox_Frequency", "cfgt2f_017", 3, 0, 1, DataSetTab::main},
    {"groupBox_Motochas", "cfgt2f_018", 3, 1, 1, DataSetTab::main},
    {"groupBox_Navi", "cfgt2f_027", 0, 0, 3, DataSetTab::navi},
    {"groupBox_Accuracy", "cfgt2f_038", 0, 1, 1, DataSetTab::navi},
    {"groupBox_LBS", "cfgt2f_055", 1, 1, 1, DataSetTab::navi},
    {"groupBox_Geozone", "cfgt2f_048", 2, 1, 1, DataSetTab::navi},
    {"groupBox_MNavi", "cfgt2f_041", 3, 0, 1, DataSetTab::navi},
    {"groupBox_RS232", "cfgt2f_054", 0, 0, 1, DataSetTab::rs},
    {"groupBox_RS485", nullptr, 1, 0, 1, DataSetTab::rs, true},
    {"groupBox_Accel", "cfgt2f_082", 0, 0, 1, DataSetTab::accel},
    {"groupBox_EcoDrive", "cfgt2f_083", 1, 0, 1, DataSetTab::accel},
    {"groupBox_HighPrecision", "cfgt2f_125", 0, 0, 1, DataSetTab::more, true},
    {"groupBox_Passager", "cfgt2f_132", 1, 0, 1, DataSetTab::more},
    {"groupBox_Camera", "cfgt2f_134", 2, 0, 1, DataSetTab::more},
    {"groupBox_VAccelAxels", "cfgt2f_135", 3, 0, 1, DataSetTab::more},
    {"groupBox_Disp", "cfgt2f_136", 4, 0, 1, DataSetTab::more},
    {"groupBox_Ainf", "cfgt2f_139", 5, 0, 1, DataSetTab::more},
    {"groupBox_Tires", "cfgt2f_127", 6, 0, 1, DataSetTab::more},
};

inline constexpr auto kDataSetBoxes = [] {
    using namespace data_set;
    using enum DataSetTab;
    return tables::join(
        in(main, "groupBox_Main", always("checkBox_NumPage", 0, "cfgt2f_003"),
           always("checkBox_Code", 1, "cfgt2f_004"), always("checkBox_Time", 2, "cfgt2f_005"),
           box("checkBox_State", 3, "cfgt2f_006"), box("checkBox_State_2", 122, "cfgt2f_007"),
           box("checkBox_Module", 4, "cfgt2f_008"), box("checkBox_Module_2", 5, "cfgt2f_009"),
           box("checkBox_Module_3", 123, "cfgt2f_010"), box("checkBox_GSM", 6, "cfgt2f_011"),
           box("checkBox_GSM_State", 124, "cfgt2f_012"), box("checkBox_StateOut", 30, "cfgt2f_013"),
           boxes<1>("checkBox_StateOut_%1", 2, 31, "cfgt2f_013", "%1 %2"),
           box("checkBox_StateIn", 28, "cfgt2f_014"),
           boxes<1>("checkBox_StateIn_%1", 2, 29, "cfgt2f_014", "%1 %2"),
           boxes<1>("checkBox_StateIn_%1", 3, 125, "cfgt2f_014", "%1 %2"),
           box("checkBox_Power", 18, "cfgt2f_015").hidden(), box("checkBox_Reserv", 19, "cfgt2f_156")),
        hidden(main, "groupBox_Imp", boxes<2>("checkBox_StateIn_Imp_%1", 1, 32, "cfgt2f_016", "%1 %2"),
               boxes<6>("checkBox_StateIn_Imp_%1", 3, 126, "cfgt2f_016", "%1 %2")),
        in(main, "groupBox_Ain", boxes<2>("checkBox_StateU_Ain_%1", 1, 20, "cfgt2f_023", "%1 AIN%2"),
           boxes<1>("checkBox_StateU_Ain_%1", 3, 22, "cfgt2f_023", "%1 AIN%2", 3),
           boxes<5>("checkBox_StateU_Ain_%1", 4, 23, "cfgt2f_023", "%1 AIN%2")),
        hidden(main, "groupBox_Frequency", boxes<2>("checkBox_Frequency_%1", 1, 34, "cfgt2f_017", "%1 %2"),
               boxes<6>("checkBox_Frequency_%1", 3, 132, "cfgt2f_017", "%1 %2")),
        hidden(main, "groupBox_Motochas", box("checkBox_Motochas", 36, "cfgt2f_018"),
               box("checkBox_Motochas_2", 205, "cfgt2f_019"), box("checkBox_Motochas_3", 204, "cfgt2f_020")),
        in(main, "groupBox_Temp", boxes<8>("checkBox_Temp_%1", 1, 44, "cfgt2f_022", "%1 T%2", 4)),

        in(navi, "groupBox_Navi", box("checkBox_StateNGauge", 7, "cfgt2f_028"),
           box("checkBox_LastTime", 8, "cfgt2f_029"),
           DataSetBox{.field = fieldOf("checkBox_Coord", {9, 10}, "cfgt2f_030")},
           box("checkBox_Altitude", 11, "cfgt2f_031"), box("checkBox_Speed", 12, "cfgt2f_032"),
           box("checkBox_Course", 13, "cfgt2f_033"), box("checkBox_Run", 14, "cfgt2f_034"),
           box("checkBox_Way", 15, "cfgt2f_035"), box("checkBox_AllSeconds", 16, "cfgt2f_036"),
           box("checkBox_SecondsLast", 17, "cfgt2f_037")),
        in(navi, "groupBox_Accuracy", box("checkBox_MNaviInfo", 69, "cfgt2f_039"),
           box("checkBox_MNaviError", 70, "cfgt2f_040")),
        hidden(navi, "groupBox_MNavi", box("checkBox_MNaviState", 71, "cfgt2f_042"),
               box("checkBox_MNaviCoord", 72, "cfgt2f_043"), box("checkBox_MNaviAlt", 73, "cfgt2f_044"),
               box("checkBox_MNaviCourse", 74, "cfgt2f_045"), box("checkBox_MNaviSpeed", 75, "cfgt2f_046")),
        in(navi, "groupBox_LBS", box("checkBox_LBS", 76, "cfgt2f_047")),
        hidden(navi, "groupBox_Geozone", box("checkBox_Geozone", 199, "cfgt2f_048")),

        hidden(rs, "groupBox_RS232", box("checkBox_RS232_Level", 43, "cfgt2f_054")),
        in(rs, "groupBox_RS485",
           orAt(boxes<6>("checkBox_RS485_Level_%1", 1, 37, "cfgt2f_052", "%1 %2", 6), 77),
           boxes<10>("checkBox_RS485_Level_%1", 7, 83, "cfgt2f_052", "%1 %2"),
           boxes<16>("checkBox_RS485_Frequency_%1", 1, 146, "cfgt2f_053", "%1 %2", 6)),

        in(accel, "groupBox_Accel", box("checkBox_AccelDelta", 105, "cfgt2f_084"),
           box("checkBox_AccelLinear", 106, "cfgt2f_085").hidden(),
           box("checkBox_AccelModule", 107, "cfgt2f_086"), box("checkBox_Accel_1", 138, "cfgt2f_087"),
           box("checkBox_Accel_2", 139, "cfgt2f_088").hidden(),
           box("checkBox_Accel_3", 140, "cfgt2f_089").hidden()),
        hidden(accel, "groupBox_EcoDrive", box("checkBox_Accel_Drive_1", 108, "cfgt2f_090"),
               box("checkBox_Accel_Drive_2", 142, "cfgt2f_091"),
               box("checkBox_Accel_Drive_3", 143, "cfgt2f_092"),
               box("checkBox_Accel_Drive_4", 144, "cfgt2f_093"),
               box("checkBox_Accel_Drive_5", 145, "cfgt2f_094")),

        hidden(more, "groupBox_Passager", boxes<8>("checkBox_PassDoor_%1", 1, 109, "cfgt2f_133", "%1 %2")),
        hidden(more, "groupBox_Camera", box("checkBox_CameraState", 121, "cfgt2f_134")),
        hidden(more, "groupBox_VAccelAxels", box("checkBox_VAccelAxels", 141, "cfgt2f_135")),
        hidden(more, "groupBox_Disp", box("checkBox_DispCur", 103, "cfgt2f_137"),
               box("checkBox_DispLastIndex", 104, "cfgt2f_138")),
        hidden(more, "groupBox_Ainf", box("checkBox_AinfState", 117, "cfgt2f_140"),
               box("checkBox_AinfGeozoneID", 118, "cfgt2f_141"),
               box("checkBox_AinfStopID", 119, "cfgt2f_142"), box("checkBox_AinfRouteID", 120, "cfgt2f_143")),
        in(more, "groupBox_HighPrecision",
           boxes<4>("checkBox_HighPrecision_Temp_%1", 1, 162, "cfgt2f_126", "%1 %2", 4),
           boxes<4>("checkBox_HighPrecision_Humidity_%1", 1, 166, "cfgt2f_131", "%1 %2", 4)),
        hidden(more, "groupBox_Tires", tyres()));
}();

} // namespace vlk
