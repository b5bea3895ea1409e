#pragma once

// Rows that the pages of the full window and the quick window both have, each with widgets of its own that
// bear the same names. What differs in one of the two is said there (`.resetTo`, `.range`).

#include "settings/operators.h"
#include "settings/settings_table.h"

namespace vlk::shared {

inline constexpr const char* kNoServer = "0.0.0.0";

// Nothing, an IPv4 address, or the name of a host: labels of up to 63 letters, digits, hyphens and
// underscores.
inline constexpr const char* kHostPattern =
    R"(^$|^(?:(?:25[0-5]|2[0-4]\d|1?\d?\d)(?:\.(?!$)|$)){4}$)"
    R"(|^(?!(?:\d+\.)*\d*$)(?:[A-Za-z0-9_](?:[A-Za-z0-9_-]{0,61}[A-Za-z0-9_])?(?:\.|$))+$)";

// The address of a server, in whatever form the row has.
constexpr Text host(const Text& row)
{
    return row.expected(kHostPattern, "cfgt1_125");
}

// A port of 0 beside the address of a server.
constexpr Doubt noPort(const char* port, const char* address, When used = {})
{
    return {port, {when(port, "0"), when(address), unless(address, kNoServer), used}, "typed_port"};
}

// The address of a Bluetooth device, as a line with a mask has it: six pairs of digits, or none of them.
constexpr Text bluetoothAddress(const Text& row)
{
    return row.masked("HH:HH:HH:HH:HH:HH").expected("^:*$|^(?:[0-9A-Fa-f]{2}(?::(?!$)|$)){6}$", "typed_mac");
}

// clang-format off
inline constexpr Code kRoamingModes[] = {
    {.code = "0", .label = "cfgt1_017"},  // Send no data
    {.code = "1", .label = "cfgt1_018"},  // Connect periodically
    {.code = "2", .label = "cfgt1_019"},  // As in the home network
    {.code = "3", .label = "cfgt1_020"}   // Record points less often
};

inline constexpr auto kAccessPoint = rowsOf(
    choice("operator", kOperatorCodes, kAutomaticOperator).notStored().in("Transfer_comboBox_GSM_Operator_1").caption("cfgt1_006"),   // Operator
    text("name", "")                                                  .in("Transfer_lineEdit_GSM_APN_1")     .caption("cfgt1_029"),   // APN
    text("login", "")                                     .secretly() .in("Transfer_lineEdit_GSM_Login_1")   .caption("cfgt1_031"),   // Login
    text("pass", "")                                      .secretly() .in("Transfer_lineEdit_GSM_Psw_1")     .caption("cfgt1_033"));  // Password

inline constexpr auto kRoamingPeriod = integer("cnctTimer", 3600, 60).range(5, 99999).unit("abbr_002")
    .in("spinBox_RConnectPeriod").caption("cfgt1_040");  // Connection period
inline constexpr auto kRoamingMode = choice("mode", kRoamingModes, "2").byNumber()
    .in("comboBox_RModeSim_1")   .caption("cfgt1_021");  // Roaming mode
inline constexpr auto kObjectId = integer("idQSP", 1).range(0, 2147483647)
    .in("spinBox_QSP_Id")        .caption("cfgt1_060");  // Number in the service
// clang-format on

// The table by which the tracker picks the access point of a SIM by itself: ten rows of operator code, access
// point, login and password, all free text.
inline constexpr Heading kApnRow{"cfgt1_121", "%1: %2"}; // APN list

constexpr auto apnRows(const Group& element)
{
    // clang-format off
    return rowsOf(
        element,
        kApnRow,
        repeat<kApnRowCount>([](int number) {
            const MobileOperator& row = defaultApnRow(number - 1);
            return rowsOf(
                text("sID%1", row.code)                .inCell("treeWidget_ListApn", 1).caption("cfgt1_106"),   // Operator code
                text("name%1", row.apn)                .inCell("treeWidget_ListApn", 2).caption("cfgt1_029"),   // APN
                text("login%1", row.login)  .secretly().inCell("treeWidget_ListApn", 3).caption("cfgt1_031"),   // Login
                text("pass%1", row.password).secretly().inCell("treeWidget_ListApn", 4).caption("cfgt1_033"));  // Password
        }));
    // clang-format on
}

// clang-format off
inline constexpr Code kAngleModes[] = {
    {.code = "0", .label = "wrd_002"},                                               // No
    {.code = "1", .label = "cfgt3_008", .widget = "Additional_checkBox_Corner"},     // By a fixed course change angle
    {.code = "2", .label = "cfgt3_009", .widget = "Additional_checkBox_Direction"},  // By an adaptive course change angle
};

inline constexpr auto kPointsOnTheWay = rowsOf(
    choice("angleMode", kAngleModes, "2").byNumber().unknownIs("0")                                    .caption("cfgt3_007"),   // Points on a course change
    integer("angle", 5)                  .range(1, 90).unit("abbr_016").in("Additional_spinBox_Corner").caption("cfgt3_010"));  // Course change angle
inline constexpr auto kUseDistance = flag("useDist", 1).in("Additional_Direction_checkBox_Metr").caption("cfgt3_011");  // By distance travelled
inline constexpr auto kPointsInTime = rowsOf(
    integer("dist", 500).range(1, 10000).unit("abbr_022").in("Additional_Direction_spinBox_Metr_Value").caption("cfgt3_012"),   // Distance between points
    flag("useTimer", 1)                                  .in("Additional_Direction_checkBox_Sec")      .caption("cfgt3_013"));  // By time
inline constexpr auto kMoveTimer = integer("moveTimer", 60).range(0, 99999).unit("abbr_003")
    .in("Additional_Direction_spinBox_Sec_Value")    .caption("cfgt3_014");  // Period in motion
inline constexpr auto kStopTimer = integer("stopTimer", 600).range(0, 99999).unit("abbr_003")
    .in("Additional_Direction_spinBox_SecStop_Value").caption("cfgt3_015");  // Period when parked

inline constexpr const char* kPasswordPattern = R"(^\S{0,6}$)";
inline constexpr const char* kPhonePattern = R"(^[\+\d]\d{0,15}$)";

inline constexpr auto kPasswords = rowsOf(
    text("general", "").secretly().typed(kPasswordPattern).in("Settings_Psw_lineEdit_CSD")  .caption("cfgt4_006"),   // Password for control over USB and GPRS
    text("SMS", "")    .secretly().typed(kPasswordPattern).in("Settings_Psw_lineEdit_SMS")  .caption("cfgt4_007"),   // Password for control by SMS
    text("number", "") .secretly().typed(kPhonePattern)   .in("Settings_Psw_lineEdit_Phone").caption("cfgt4_092"));  // Phone number for control
inline constexpr auto kSupplyLine = flag("line", 0).onValue(3).in("checkBox_Power_Line").caption("cfgt4_093");  // Use AIN3 as the voltage sensor
// clang-format on

} // namespace vlk::shared
