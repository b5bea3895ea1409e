#include "settings/transfer_settings.h"

#include "settings/transfer_rows.h"

namespace vlk {

namespace {

using namespace transfer;

// Switching a server on or off starts it anew; one in use is one that has an address in the file.
constexpr auto kSets = repeat<3>([](int) {
    // clang-format off
    return rulesOf(
        onEdit(when("SRV%1/use"),                  "SRV%1/port", "4000"),
        onEdit(when("SRV%1/use"),                  "SRV%1/addr", kNoServer),
        onEdit(unless("SRV%1/use"),                "SRV%1/port", "0"),
        onEdit(unless("SRV%1/use"),                "SRV%1/addr", ""),
        afterRead(unless("SRV%1/addr", kNoServer), "SRV%1/use",  "1"),
        onSave(unless("SRV%1/use"),                "SRV%1/addr", kNoServer));
    // clang-format on
});

constexpr auto kPresets = rulesOf(Presets{.trigger = "AP1/operator",
                                          .fields = {"AP1/name", "AP1/login", "AP1/pass"},
                                          .rows = kOperatorPresets,
                                          .other = kOtherOperator});

constexpr auto kDoubts =
    repeat<3>([](int) { return shared::noPort("SRV%1/port", "SRV%1/addr", when("SRV%1/use")); });

// clang-format off
constexpr auto kEnables = rulesOf(
    repeat<3>([](int number) { return enable(parts(kServers[number - 1].test), when("SRV%1/use"), when("SRV%1/addr")); }),
    enable("Transfer_lineEdit_GSM_APN_1 Transfer_lineEdit_GSM_Login_1 Transfer_lineEdit_GSM_Psw_1", when("AP1/operator", kOtherOperator)),
    enable(parts("pushButton_AutoAPN_1"),                  when("AP1/operator", kAutomaticOperator)),
    enable(parts("Srv_Operation_frame_Permanent_Connect"), when("RULES/cnctType")),
    enable(parts("Srv_Operation_frame_Periodic_Connect"),  unless("RULES/cnctType")),
    enableAny(parts("frame_Crypto"),                       when("CRYPTO/srv1Mode"), when("CRYPTO/srv2Mode"), when("CRYPTO/srv3Mode")),
    enable("checkBox_RNoSmsSim_1 checkBox_RNoCallSim_1",   unless("ROAMSIM1/mode", "2")),
    enable(parts("frame_RBlock"),                          unless("ROAMSIM1/mode", "2")),
    enable(parts("frame_RPerion"),                         when("ROAMSIM1/mode", "3")),
    enable(parts("frame_RConnectPeriod"),                  when("ROAMSIM1/mode", "1")));
// clang-format on

} // namespace

constexpr SettingsTable kTransferSettings =
    tableOf<kRows, kSets, kPresets, kDoubts, kEnables>(kSection, "cfgt1_001");

} // namespace vlk
