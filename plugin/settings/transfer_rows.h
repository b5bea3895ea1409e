#pragma once

// The rows of the table that transfer_settings.h tells of.

#include "settings/shared_rows.h"
#include "settings/transfer_settings.h"

namespace vlk::transfer {

inline constexpr const char* kSection = "TRANS";

inline constexpr int kMinute = 60;
inline constexpr int kHour = 60 * kMinute;
inline constexpr int kDay = 24 * kHour;

// clang-format off
inline constexpr Code kProtocols[] = {
    {.code = "K5.2",     .label = "K5.2"},
    {.code = "K6",       .label = "K6"},
    {.code = "EGTS",     .label = "cfgt1_012"},  // EGTS
    {.code = "EGTSAUTH", .label = "cfgt1_013"},  // EGTS with authorisation
    {.code = "ZETA",     .label = "ZETA"},
    {.code = "UNDS",     .label = "cfgt1_014"},  // UNDS
};
inline constexpr Code kTransports[] = {{.code = "TCP", .label = "TCP"}, {.code = "UDP", .label = "UDP"}};
inline constexpr Code kConnectTypes[] = {
    {.code = "1", .label = "cfgt1_015"},  // Permanent
    {.code = "0", .label = "cfgt1_016"}   // Periodic
};
using shared::kNoServer;

inline constexpr PeriodPart kPeriodicConnection[] = {
    {"Srv_Operation_spinBox_Periodic_Connect_Period_H", kHour,   0, 71, "abbr_001"},
    {"Srv_Operation_spinBox_Periodic_Connect_Period_M", kMinute, 0, 59, "abbr_002"},
};
inline constexpr PeriodPart kBlock[] = {
    {"Srv_Operation_spinBox_Block_H", kHour,   0, 24, "abbr_001"},
    {"Srv_Operation_spinBox_Block_M", kMinute, 0, 59, "abbr_002"},
};
inline constexpr PeriodPart kRoamingBlock[] = {
    {"spinBox_RBlockH", kHour,   0, 99999, "abbr_001"},
    {"spinBox_RBlockM", kMinute, 0, 59,    "abbr_002"},
};
inline constexpr PeriodPart kRemoteService[] = {
    {"spinBox_QSP_CnctTimer_dd", kDay,    0, 365, "abbr_004"},
    {"spinBox_QSP_CnctTimer_hh", kHour,   0, 23,  "abbr_001"},
    {"spinBox_QSP_CnctTimer_mm", kMinute, 0, 59,  "abbr_002"},
};
// clang-format on

inline constexpr Heading kObject{"cfgt1_063"};         // Object
inline constexpr Heading kServersHeading{"cfgt1_061"}; // Servers
inline constexpr Heading kAccessPoint{"cfgt1_024"};    // GPRS access point
inline constexpr Heading kRules{"cfgt1_036"};          // Connection rules
inline constexpr Heading kRoaming{"cfgt1_084"};        // Roaming
inline constexpr Heading kEncryption{"cfgt1_047"};     // Encryption
inline constexpr Heading kRemoteSetup{"cfgt1_059"};    // Remote setup service
// clang-format off
inline constexpr Heading kServer[] = {
    {"cfgt1_010", "%1",   &kServersHeading},  // Main
    {"cfgt1_011", "%1 1", &kServersHeading},  // Backup
    {"cfgt1_011", "%1 2", &kServersHeading}   // Backup
};
// clang-format on

struct ServerWidgets
{
    const char* use;
    const char* address;
    const char* port;
    const char* protocol;
    const char* transport;
    const char* objectId;
    const char* centreId;
    const char* test;
    bool usedAfterReset;
    double largestId;
};

inline constexpr ServerWidgets kServers[] = {
    {"GPRSSrv_groupBox_Main", "GPRSSrv_lineEdit_IP_DNS_Main", "GPRSSrv_spinBox_Port_Main",
     "Transfer_comboBox_Protocol_Format_Main", "Transfer_comboBox_Protocol_Trans_Main",
     "Transfer_spinBox_Protocol_ObjectID_Main", "Transfer_spinBox_Protocol_CentreID_Main",
     "GPRSSrv_toolButton_Test_Main", true, 2147483647},
    {"GPRSSrv_groupBox_Reserv_1", "GPRSSrv_lineEdit_IP_DNS_Reserv_1", "GPRSSrv_spinBox_Port_Reserv_1",
     "Transfer_comboBox_Protocol_Format_Reserv_1", "Transfer_comboBox_Protocol_Trans_Reserv_1",
     "Transfer_spinBox_Protocol_ObjectID_Reserv_1", "Transfer_spinBox_Protocol_CentreID_Reserv_1",
     "GPRSSrv_toolButton_Test_Reserv_1", false, 999999999},
    {"GPRSSrv_groupBox_Reserv_2", "GPRSSrv_lineEdit_IP_DNS_Reserv_2", "GPRSSrv_spinBox_Port_Reserv_2",
     "Transfer_comboBox_Protocol_Format_Reserv_2", "Transfer_comboBox_Protocol_Trans_Reserv_2",
     "Transfer_spinBox_Protocol_ObjectID_Reserv_2", "Transfer_spinBox_Protocol_CentreID_Reserv_2",
     "GPRSSrv_toolButton_Test_Reserv_2", false, 999999999},
};

inline constexpr auto kServerRows = repeat<3>([](int number) {
    const ServerWidgets& server = kServers[number - 1];
    // clang-format off
    return rowsOf(
        group("SRV%1"), kServer[number - 1],
        flag("use", 0)                          .resetTo(server.usedAfterReset ? 1 : 0).notStored().in(server.use).caption("cfgt1_023"),  // Use this server
        shared::host(text("addr", kNoServer))   .resetTo("")                            .in(server.address)  .caption("cfgt1_026"),   // Address (IP or name)
        integer("port", 4000)                   .range(0, 65536).port().resetTo(0)      .in(server.port)     .caption("cfgt1_027"),   // Port
        choice("protocol", kProtocols, "ZETA")  .unknownIs("ZETA").noItemIs("VLKB_ZETA").in(server.protocol) .caption("cfgt1_028"),   // Protocol
        choice("transProto", kTransports, "TCP").unknownIs("TCP")                       .in(server.transport).caption("cfgt1_030"),   // Transport
        integer("objID", 0)                     .range(0, server.largestId)             .in(server.objectId) .caption("cfgt1_032"),   // Object ID
        integer("dcID", 1)                      .range(0, server.largestId)             .in(server.centreId) .caption("cfgt1_034"));  // Centre ID
    // clang-format on
});

inline constexpr Heading kRoamingOperator{"cfgt1_122", "%1: %2", &kRoaming}; // Operator list

// Ten rows of the list of operators in roaming; a cell that was never filled is empty.
inline constexpr auto kRoamingOperators = repeat<kRoamingRows>([](int) {
    return rowsOf(kRoamingOperator,
                  integer("opCode%1", 0).blankable().inCell("treeWidget_List", 1).caption("cfgt1_106"));
});

// clang-format off
inline constexpr auto kRows = rowsOf(
    group("OBJECT"), kObject,
    text("name", DefaultText{.format = "%1_Config", .namesModel = true}).upTo(64).typed("^.{0,64}$").in("lineEdit_Name").caption("cfgt1_005"),  // Name
    kServerRows,

    group("AP1"), kAccessPoint,
    shared::kAccessPoint,
    text("pin", "").secretly().upTo(8).typed("^\\d{0,8}$").in("Transfer_lineEdit_GSM_Pin1").caption("cfgt1_007"),  // SIM card PIN

    group("RULES"), kRules,
    flag("noPriorMsg", 1)                                           .in("checkBox_NoToGprs")                 .caption("cfgt1_042"),  // Do not send priority messages
    choice("cnctType", kConnectTypes, "1").byNumber().unknownIs("1").in("Srv_Operation_comboBox_TypeConnect").caption("cfgt1_037"),  // Connection
    integer("pingTimer", 90).range(15, 3600).unit("abbr_003").in("Srv_Operation_spinBox_Permanent_Connect_Period").caption("cfgt1_038"),  // Check period
    flag("telAddPing", 0)                         .in("Srv_Operation_checkBox_Permanent_Connect_AddToPing")  .caption("cfgt1_039"),  // Add telemetry
    period("cnctTimer", 3600, kPeriodicConnection).wrapping(kDay)                                            .caption("cfgt1_040"),  // Connection period
    flag("useCmd", 1)                             .in("Srv_Operation_checkBox_UseCommand")                   .caption("cfgt1_043"),  // Accept server commands
    period("blockTimer", 300, kBlock)             .wrapping(kDay)                                            .caption("cfgt1_044"),  // Pause after a failure
    flag("coercCnct", 0)                          .in("Srv_Operation_checkBox_Periodic_Connect_CoercionCnct").caption("cfgt1_041"),  // Even without new data
    // Older trackers kept seconds under this name: any number but 0 means on.
    flag("noCur", 30)                             .atReset(OnReset::KeepsValue).in("checkBox_NoCur")         .caption("cfgt1_045"),  // Do not send current data
    integer("grpTimer", 0).range(1, 300).resetTo(30).offAtZero("checkBox_GrpTimer").switchedOnTo(30).unit("abbr_003")
                                                  .in("spinBox_GrpTimer")                                    .caption("cfgt1_046"),  // Group data over

    group("ROAM"), kRoaming,
    shared::kRoamingPeriod,
    integer("moveTimer", 1800, kMinute)     .range(1, 9999).unit("abbr_002").in("spinBox_RRunPeriod")    .caption("cfgt1_053"),  // Points in motion
    integer("stopTimer", 3600, kMinute)     .range(1, 9999).unit("abbr_002").in("spinBox_RParkingPeriod").caption("cfgt1_054"),  // when parked
    period("blockTimer", 300, kRoamingBlock).atLeast(300)                                                .caption("cfgt1_044"),  // Pause after a failure
    flag("archSend", 0)                                                     .in("checkBox_RArchSend")    .caption("cfgt1_057"),  // Send the archive in roaming

    group("ROAMSIM1"),
    shared::kRoamingMode,
    flag("noCall", 0)                   .in("checkBox_RNoCallSim_1").caption("cfgt1_055"),  // Block calls
    flag("noSms", 0)                    .in("checkBox_RNoSmsSim_1") .caption("cfgt1_056"),  // Block SMS
    flag("dontCnct", 0).checkedForZero().in("checkBox_sendData")    .caption("cfgt1_107"),  // Send data even if the operator is not in the list
    kRoamingOperators,

    group("CRYPTO"), kEncryption,
    text("key", "").secretly().upTo(32).in("lineEdit_Crypto")                           .caption("cfgt1_048"),  // Key
    kServer[0],
    flag("srv1Mode", 0)                .in("Transfer_checkBox_Protocol_Crypto_Main")    .caption("cfgt1_035"),  // Encrypt data for this server
    kServer[1],
    flag("srv2Mode", 0)                .in("Transfer_checkBox_Protocol_Crypto_Reserv_1").caption("cfgt1_035"),  // Encrypt data for this server
    kServer[2],
    flag("srv3Mode", 0)                .in("Transfer_checkBox_Protocol_Crypto_Reserv_2").caption("cfgt1_035"),  // Encrypt data for this server

    group("SIMPRIOR"), kAccessPoint,
    integer("regTimer", 90).range(45, 900).unit("abbr_003").in("spinBox_RegTimer").caption("cfgt1_022"),  // Wait for network

    group("QSP"), kNoHeading,
    flag("use", 1)                                            .in("groupBox_QSP")           .caption("cfgt1_059"),  // Remote setup service
    kRemoteSetup,
    period("cnctTimer", kDay, kRemoteService).atLeast(600)                                  .caption("cfgt1_040"),  // Connection period
    shared::kObjectId,
    choice("transProto", kTransports, "TCP") .unknownIs("TCP").in("comboBox_QSP_TransProto").caption("cfgt1_030"),  // Transport

    shared::apnRows(group("AUTOAPN")));
// clang-format on

} // namespace vlk::transfer
