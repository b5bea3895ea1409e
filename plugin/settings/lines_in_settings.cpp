#include "settings/lines_in_settings.h"

#include "settings/lines_in_rows.h"

namespace vlk {

namespace {

using namespace lines_in;

constexpr const char* kDiscrete = "NS-|NB-|NS+|NB+";

constexpr auto soleIgnition(const char* line, const char* other, const char* third)
{
    return rulesOf(onEditOrRead(when(line), other, "0"), onEditOrRead(when(line), third, "0"));
}

// One line says that the ignition is on, of a file the last one that claims it; a use without two states
// cannot. Filtering off is a window of one value. A use has its own usual threshold.
// clang-format off
constexpr auto kSets = rulesOf(
    soleIgnition("IN1/ign", "IN2/ign", "IN3/ign"),
    soleIgnition("IN2/ign", "IN1/ign", "IN3/ign"),
    soleIgnition("IN3/ign", "IN1/ign", "IN2/ign"),
    repeat<3>([](int) {
        return rulesOf(
            onEdit(unless("IN%1/normState", kDiscrete), "IN%1/ign",               "0"),
            onEdit(unless("IN%1/IN%1FRQ/filterMode"),   "IN%1/IN%1FRQ/filterLen", "1"),
            onEdit(unless("IN%1/IN%1FRQ/filterMode"),   "IN%1/IN%1FRQ/filterLvl", "0"),
            onEdit(unless("IN%1/IN%1AIN/filterMode"),   "IN%1/IN%1AIN/filterLen", "1"),
            onEdit(unless("IN%1/IN%1AIN/filterMode"),   "IN%1/IN%1AIN/filterLvl", "0"));
    }),
    onEdit(when("IN3/normState", "FRQ"),  "IN3/thld", "20"),
    onEdit(when("IN3/normState", "AIN"),  "IN3/thld", "500"),
    onEdit(when("IN3/normState", "TAHO"), "IN3/thld", "2000"));

constexpr auto kRanges = rulesOf(
    RangeWhen{when("IN3/normState", "FRQ"),  "IN3/thld", 1, 20000, "abbr_013"},
    RangeWhen{when("IN3/normState", "AIN"),  "IN3/thld", 1, 32000, "abbr_012"},
    RangeWhen{when("IN3/normState", "TAHO"), "IN3/thld", 0, 20000, "abbr_018"});
// clang-format on

constexpr auto levelDistance(int number)
{
    return numbered(rulesOf(Distance{.first = "IN%1/IN%1ADIN/lowLvl",
                                     .second = "IN%1/IN%1ADIN/highLvl",
                                     .gap = 0.5,
                                     .slider = "slider_AIN"}),
                    number);
}

constexpr auto kDistances = rulesOf(levelDistance(2), levelDistance(3));

// clang-format off
constexpr auto kEnables = rulesOf(
    repeat<3>([](int) {
        return rulesOf(
            enable(parts("label_Title_Ignition_In%1 frame_Ignition_In%1 "
                         "label_Title_ControlRestore_In%1 frame_ControlRestore_In%1"),
                   when("IN%1/normState", kDiscrete)),
            enable(parts("groupBox_PLS_SetLine groupBox_PLS_Work"),
                   when("IN%1/IN%1PLS/startCount"), when("IN%1/IN%1PLS/startTime"),
                   when("IN%1/IN%1PLS/stopCount"), when("IN%1/IN%1PLS/stopTime")),
            enable("spinBox_FRQ_Aver spinBox_FRQ_Kalman",    when("IN%1/IN%1FRQ/filterMode")),
            enable(parts("label_FRQ_Aver label_FRQ_Kalman"), when("IN%1/IN%1FRQ/filterMode")),
            enable("spinBox_UI_Aver spinBox_UI_Kalman",      when("IN%1/IN%1AIN/filterMode")),
            enable(parts("label_UI_Aver label_UI_Kalman"),   when("IN%1/IN%1AIN/filterMode")));
    }),
    enable(parts("label_Title_Response_In3 frame_Response_In3"),         when("IN3/normState", "FRQ|AIN|TAHO")),
    enable(parts("label_Title_TrhldMoveOff_In3 frame_TrhldMoveOff_In3"), when("IN3/normState", "FRQ|AIN")));
// clang-format on

} // namespace

constexpr SettingsTable kLinesInSettings =
    tableOf<kRows, kSets, kDistances, kRanges, kEnables>(kSection, "cfgt8_001");

} // namespace vlk
