#include "settings/track_settings.h"

#include "settings/track_rows.h"

namespace vlk {

namespace {

using namespace track;

// clang-format off
constexpr auto kEnables = rulesOf(
    enable("Always_spinBox_MaxSpeed_Value",                       when("POINTS/useMaxSpeed")),
    enable("Additional_spinBox_Corner",                           when("POINTS/angleMode", "1")),
    enable("Additional_Direction_spinBox_Metr_Value",             when("POINTS/useDist")),
    enable("Additional_Direction_spinBox_Sec_Value checkBox_TmrFlag_In1 "
           "Additional_Direction_spinBox_SecStop_Value",
           when("POINTS/useTimer")),
    enableAny(parts("Additional_Direction_groupBox_Restriction"), when("POINTS/angleMode"), when("POINTS/useDist"), when("POINTS/useTimer")),
    enable("Restriction_spinBox_Metr_Value",                      when("LIMPOINT/blockDist")),
    enable("Restriction_spinBox_Sec_Value",                       when("LIMPOINT/blockTimer")),
    enable(parts("groupBox_RejectCoord Coord_groupBox_Stop"),     when("COORDFLT/use")),
    enable(parts("groupBox_SensorAverage"),                       when("COORDFLT/use"),     when("COORDAVER/mode")));
// clang-format on

} // namespace

constexpr SettingsTable kTrackSettings = tableOf<kRows, kEnables>(kSection, "cfgt3_001");

} // namespace vlk
