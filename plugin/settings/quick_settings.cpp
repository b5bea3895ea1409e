#include "settings/quick_settings.h"

#include "settings/quick_lines.h"
#include "settings/quick_sensors.h"
#include "settings/shared_rows.h"

namespace vlk {

namespace {

// The window always writes ZETA; the others are known from files.
// clang-format off
constexpr Code kProtocols[] = {
    {.code = "R-7044",    .label = "K5.2 (R-7044)"},
    {.code = "R-7280",    .label = "K6 (R-7162)"},
    {.code = "EGTS",      .label = "EGTS"},
    {.code = "EGTS_AUTH", .label = "cfgt1_013"},  // EGTS with authorisation
    {.code = "VLKB_ZETA", .label = "ZETA"},
    {.code = "UNDS",      .label = "cfgt1_014"},  // UNDS
};

constexpr Code kTrackPresets[] = {
    {.code = "economical", .label = "cfgwl_003", .widget = "radioButton_Track_Econom"},   // Economical
    {.code = "optimal",    .label = "cfgwl_004", .widget = "radioButton_Track_Optimal"},  // Optimal
    {.code = "detailed",   .label = "cfgwl_005", .widget = "radioButton_Track_Full"},     // Detailed
    {.code = "custom",     .label = "cfgwl_006", .widget = "radioButton_Track_User"},     // Custom
};

// angleMode, angle, useDist, dist, useTimer, moveTimer, stopTimer. A reset gives those of "optimal".
constexpr PresetRow kTrackRows[] = {
    {"economical", {"2", "5", "1", "1000", "1", "0", "600"}},
    {"optimal",    {"2", "5", "1", "500", "1", "60", "600"}},
    {"detailed",   {"1", "5", "1", "500", "1", "20", "600"}},
};
// clang-format on

// The mask that the window begins with before it has read one, of the first two versions of the data set.
constexpr auto kFirstMask = quick::fieldsAs<kEarlierFieldCount>(
    '0', '1',
    {field("NumPage"), field("Code"), field("Time"), field("State"), field("Module1"), field("Module2"),
     field("GSM"), field("StateNGauge"), field("LastTime"), field("Latitude"), field("Longitude"),
     field("Speed"), field("Course"), field("Run"), field("Power"), field("Reserv"), field("StateIn1"),
     field("Motochas")});

constexpr Heading kAccessPoint{"cfgt1_024"};                // GPRS access point
constexpr Heading kServer{"cfgwl_001"};                     // Server
constexpr Heading kRoaming{"cfgt1_084"};                    // Roaming
constexpr Heading kTrack{"cfgwl_002"};                      // Track
constexpr Heading kTrackPoints{"cfgwl_007", "%1", &kTrack}; // Track settings
constexpr Heading kPasswords{"cfgt4_091"};                  // Access and supply voltage

// clang-format off
constexpr auto kRows = rowsOf(
    group("PROTOCOL").atSave(ElementSave::KeepsOthers),
    constant("page", "PROTOCOL"),

    group("PROTOCOL/ZETA").atSave(ElementSave::KeepsOthers),
    text("mask", kFirstMask.data()).atSave(OnSave::Document).ifMissing(Missing::KeepsValue),

    group("TRANS").atSave(ElementSave::KeepsOthers),
    constant("page", "TRANS"),

    group("TRANS/AP1").atSave(ElementSave::KeepsOthers), kAccessPoint,
    shared::kAccessPoint,
    flag("untouched", 0).resetTo(1).notStored(),

    group("TRANS/SRV1").atSave(ElementSave::KeepsOthers), kServer,
    shared::host(text("addr", shared::kNoServer))             .in("GPRSSrv_lineEdit_IP_DNS_Main").caption("cfgt1_026"),  // Address (IP or name)
    integer("port", 4000).range(0, 65536).port().resetTo(5000).in("GPRSSrv_spinBox_Port_Main")   .caption("cfgt1_027"),  // Port
    choice("format", kProtocols, "VLKB_ZETA").offering("VLKB_ZETA").unknownIs("VLKB_ZETA").noItemIs("")
                                                              .in("Transfer_comboBox_Protocol_Format_Main").caption("cfgt1_028"),  // Protocol

    group("TRANS/ROAMSIM1").atSave(ElementSave::KeepsOthers), kRoaming,
    shared::kRoamingMode,

    group("TRANS/ROAM").atSave(ElementSave::KeepsOthers),
    shared::kRoamingPeriod,

    group("TRANS/QSP").atSave(ElementSave::KeepsOthers), kServer,
    shared::kObjectId,
    shared::apnRows(group("TRANS/AUTOAPN").atSave(ElementSave::KeepsOthers)),

    group("TRACK").atSave(ElementSave::KeepsOthers),
    constant("page", "TRACK"),

    group("TRACK/POINTS").atSave(ElementSave::KeepsOthers), kTrack,
    choice("preset", kTrackPresets, "optimal").notStored().ifMissing(Missing::KeepsValue),
    kTrackPoints,
    shared::kPointsOnTheWay,
    shared::kUseDistance                      .with(&Flag::load, 0).resetTo(1),
    shared::kPointsInTime,
    shared::kMoveTimer                        .range(0, 999),
    shared::kStopTimer,

    group("SYSTEM").atSave(ElementSave::KeepsOthers),
    constant("page", "SYSTEM"),

    group("SYSTEM/PASS").atSave(ElementSave::KeepsOthers), kPasswords,
    shared::kPasswords,

    group("SYSTEM/PWRSENS").atSave(ElementSave::KeepsOthers),
    shared::kSupplyLine,

    quick::kLineRows, quick::kRsRows, quick::kBluetoothRows);
// clang-format on

// For a rule: clears the fields of a record that the window decides about.
constexpr auto kUndecided =
    quick::fieldsAs('*', '0',
                    {field("StateU_Ain1"), field("StateU_Ain2"), field("StateU_Ain3"), field("StateIn1"),
                     field("StateIn_Imp1"), field("StateIn_Imp2"), field("Frequency1"), field("Frequency2"),
                     field("LevelRS485_1"), field("LevelRS485_2"), field("LevelRS485_3"),
                     field("LevelRS485_4"), field("LevelRS232"), field("TempRS485_1"), field("TempRS485_2"),
                     field("TempRS485_3"), field("TempRS485_4")});

// After a reset the access point is open to all; choosing an operator decides who may edit it.
// clang-format off
constexpr auto kSets = rulesOf(
    onEdit(when("TRANS/AP1/operator", "0|1|2|3|4|5|6"), "TRANS/AP1/untouched", "0"),
    onSave(unless("TRANS/SRV1/format", "VLKB_ZETA"),    "TRANS/SRV1/format",   "VLKB_ZETA"),
    quick::kLineSets, quick::kSensorSets,
    // What the window decides about is cleared first, then set by what is switched on.
    onSave({},                                          quick::kMask,          kUndecided.data()),
    quick::kLineMasks, quick::kSensorMasks);

constexpr auto kPresets = rulesOf(
    Presets{.trigger = "TRANS/AP1/operator",
            .fields = {"TRANS/AP1/name", "TRANS/AP1/login", "TRANS/AP1/pass"},
            .rows = kOperatorPresets,
            .other = kAutomaticOperator},
    Presets{.trigger = "TRACK/POINTS/preset",
            .fields = {"TRACK/POINTS/angleMode", "TRACK/POINTS/angle", "TRACK/POINTS/useDist",
                       "TRACK/POINTS/dist", "TRACK/POINTS/useTimer", "TRACK/POINTS/moveTimer",
                       "TRACK/POINTS/stopTimer"},
            .rows = kTrackRows},
    quick::kLinePresets);
// clang-format on

constexpr auto kDoubts = rulesOf(shared::noPort("TRANS/SRV1/port", "TRANS/SRV1/addr"));

// clang-format off
constexpr auto kEnables = rulesOf(
    enableAny("Transfer_lineEdit_GSM_APN_1 Transfer_lineEdit_GSM_Login_1 Transfer_lineEdit_GSM_Psw_1",
              when("TRANS/AP1/operator", kOtherOperator), when("TRANS/AP1/untouched")),
    enable(parts("pushButton_AutoAPN_1"),                                                       when("TRANS/AP1/operator", kAutomaticOperator)),
    enable(parts("frame_RConnectPeriod"),                                                       when("TRANS/ROAMSIM1/mode", "1")),
    enable(parts("GPRSSrv_toolButton_Test_Main"),                                               when("TRANS/SRV1/addr")),
    enable(parts("groupBox_Track_Param"),                                                       when("TRACK/POINTS/preset", "custom")),
    enable("Additional_spinBox_Corner",                                                         when("TRACK/POINTS/angleMode", "1")),
    enable("Additional_Direction_spinBox_Metr_Value",                                           when("TRACK/POINTS/useDist")),
    enable("Additional_Direction_spinBox_Sec_Value Additional_Direction_spinBox_SecStop_Value", when("TRACK/POINTS/useTimer")),
    quick::kSensorEnables);
// clang-format on

} // namespace

constexpr SettingsTable kQuickSettings =
    tableOver<kRows, kSets, kPresets, kDoubts, kEnables>("", "cfgwnd_001");

} // namespace vlk
