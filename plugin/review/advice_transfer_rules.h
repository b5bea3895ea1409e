#pragma once

// Rules of advice: servers, access points and the record.

#include "review/advice_rule_parts.h"
#include "review/advice_rules.h"
#include "review/settable.h"
#include "settings/operators.h"
#include "settings/shared_rows.h"
#include "settings/transfer_settings.h"

#include <algorithm>

namespace vlk::review::advice {

inline constexpr int kServers = 3;

// From here on a record has little room left.
inline constexpr int kCloseRecordBytes = kMostRecordBytes * 9 / 10;

// Periods that are read without their whole days, and the longest one that stays.
inline constexpr int kDay = 24 * 60 * 60;
inline constexpr const char* kLongestOfDay = "86340";

inline constexpr const char* kNoAddress = "|0.0.0.0";

inline constexpr Argument kServer = titleOf("TRANS/SRV%1/addr");

inline constexpr auto kServerRules = rulesOf(
    // A further one is not in use then.
    rule("server_empty", Hint, "adv_001")
        .each(1)
        .when(isOn("TRANS/SRV%1/use"), is("TRANS/SRV%1/addr", kNoAddress), is("TRANS/SRV%1/port", "0"))
        .naming("TRANS/SRV%1/addr", "TRANS/SRV%1/port")
        .telling(kServer),
    rule("server_address", Error, "adv_002")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), is("TRANS/SRV%1/addr", kNoAddress), isNot("TRANS/SRV%1/port", "0"))
        .naming("TRANS/SRV%1/addr")
        .telling(kServer),
    rule("server_port", Error, "adv_003")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), isNot("TRANS/SRV%1/addr", kNoAddress), is("TRANS/SRV%1/port", "0"))
        .naming("TRANS/SRV%1/port")
        .telling(kServer),
    rule("server_port_large", Error, "adv_065")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), notBelow("TRANS/SRV%1/port", kHighestPort + 1))
        .naming("TRANS/SRV%1/port")
        .telling(kServer, valueOf("TRANS/SRV%1/port")),
    rule("server_address_form", Error, "adv_004")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), unlike("TRANS/SRV%1/addr", shared::kHostPattern))
        .naming("TRANS/SRV%1/addr")
        .telling(kServer, valueOf("TRANS/SRV%1/addr")),
    rule("servers_same", Warning, "adv_005")
        .eachPair(kServers)
        .when(isOn("TRANS/SRV%1/use"), isOn("TRANS/SRV%2/use"), isNot("TRANS/SRV%1/addr", kNoAddress),
              same("TRANS/SRV%1/addr", "TRANS/SRV%2/addr"), same("TRANS/SRV%1/port", "TRANS/SRV%2/port"))
        .naming("TRANS/SRV%2/addr", "TRANS/SRV%1/addr", "TRANS/SRV%2/port", "TRANS/SRV%1/port")
        .telling(kServer, titleOf("TRANS/SRV%2/addr"), valueOf("TRANS/SRV%1/addr"),
                 valueOf("TRANS/SRV%1/port")),
    rule("server_none", Hint, "adv_066")
        .when(every(kServers, isOff("TRANS/SRV%2/use")))
        .naming("TRANS/SRV1/use"),
    rule("server_main", Hint, "adv_006")
        .when(isOff("TRANS/SRV1/use"))
        .whenAny(isOn("TRANS/SRV2/use"), isOn("TRANS/SRV3/use"))
        .naming("TRANS/SRV1/use"),
    rule("server_object", Warning, "adv_007")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), is("TRANS/SRV%1/protocol", "EGTS|EGTSAUTH"),
              is("TRANS/SRV%1/objID", "0"))
        .naming("TRANS/SRV%1/objID", "TRANS/SRV%1/protocol")
        .telling(kServer, valueOf("TRANS/SRV%1/protocol")));

// A protocol as the quick window calls it in the file, and as the Transfer page does under another key.
struct ProtocolNames
{
    const char* quick;
    const char* page;
};
inline constexpr ProtocolNames kProtocols[] = {{"R-7044", "K5.2"},    {"R-7280", "K6"},
                                               {"EGTS", "EGTS"},      {"EGTS_AUTH", "EGTSAUTH"},
                                               {"VLKB_ZETA", "ZETA"}, {"UNDS", "UNDS"}};

inline constexpr auto kProtocolRules = [] {
    std::array<Rule, std::size(kProtocols)> rules;
    std::ranges::transform(kProtocols, rules.begin(), [](const ProtocolNames& protocol) {
        return rule("quick_protocol", Warning, "adv_008")
            .when(isOn("TRANS/SRV1/use"), isNot("TRANS/SRV1/protocol", protocol.page),
                  isUnread("TRANS/SRV1/format", protocol.quick))
            .naming("TRANS/SRV1/protocol")
            .telling(unreadAt("TRANS/SRV1/format"), valueOf("TRANS/SRV1/protocol"))
            .mending("TRANS/SRV1/protocol", protocol.page);
    });
    return rules;
}();

// The list of access points is looked into where none is set.
inline constexpr auto kListRules = [] {
    constexpr const char* code = "TRANS/AUTOAPN/sID%1";
    constexpr const char* other = "TRANS/AUTOAPN/sID%2";
    const auto inUse = [](const Rule& told, auto... conditions) {
        return told.when(is("TRANS/AP1/name", ""), is("TRANS/AP1/login", ""), is("TRANS/AP1/pass", ""),
                         isNot(code, ""), conditions...);
    };
    return rulesOf(inUse(rule("apn_code_form", Warning, "adv_190")
                             .each(kApnRowCount)
                             .naming(code)
                             .telling(outerNumber(), valueOf(code)),
                         unlike(code, "^[0-9]{5,6}$")),
                   inUse(rule("apn_code_same", Warning, "adv_191")
                             .eachPair(kApnRowCount)
                             .naming(other, code)
                             .telling(outerNumber(), innerNumber(), valueOf(code)),
                         same(code, other)));
}();

constexpr Rule cutPeriod(const char* id, const char* path)
{
    return rule(id, Warning, "adv_013")
        .when(notBelow(path, kDay))
        .naming(path)
        .telling(captionOf(path), valueOf(path))
        .mending(path, kLongestOfDay);
}

inline constexpr auto kTransferRules = rulesOf(
    kServerRules, kProtocolRules, kListRules,
    rule("crypto_no_key", Error, "adv_009")
        .each(kServers)
        .when(isOn("TRANS/SRV%1/use"), isOn("TRANS/CRYPTO/srv%1Mode"), is("TRANS/CRYPTO/key", ""))
        .naming("TRANS/CRYPTO/key", "TRANS/CRYPTO/srv%1Mode")
        .telling(kServer),
    rule("crypto_key_form", Error, "adv_010")
        .when(isNot("TRANS/CRYPTO/key", ""), unlike("TRANS/CRYPTO/key", "^[0-9A-Fa-f]{32}$"),
              some(kServers, isOn("TRANS/CRYPTO/srv%2Mode")))
        .naming("TRANS/CRYPTO/key"),
    rule("crypto_unused", Hint, "adv_067")
        .when(isNot("TRANS/CRYPTO/key", ""), every(kServers, isOff("TRANS/CRYPTO/srv%2Mode")))
        .naming("TRANS/CRYPTO/srv1Mode", "TRANS/CRYPTO/key"),
    rule("pin_short", Error, "adv_011").when(like("TRANS/AP1/pin", "^.{1,3}$")).naming("TRANS/AP1/pin"),
    rule("access_point_name", Warning, "adv_012")
        .when(is("TRANS/AP1/name", ""))
        .whenAny(isNot("TRANS/AP1/login", ""), isNot("TRANS/AP1/pass", ""))
        .naming("TRANS/AP1/name", "TRANS/AP1/login", "TRANS/AP1/pass"),
    rule("roaming_no_operator", Warning, "adv_068")
        .when(isNot("TRANS/ROAMSIM1/mode", "0"), isOn("TRANS/ROAMSIM1/dontCnct"),
              every(kRoamingRows, isOff("TRANS/ROAMSIM1/opCode%2")))
        .naming("TRANS/ROAMSIM1/opCode1", "TRANS/ROAMSIM1/dontCnct"),
    cutPeriod("connection_period_cut", "TRANS/RULES/cnctTimer"),
    cutPeriod("failure_pause_cut", "TRANS/RULES/blockTimer"),
    rule("connection_period_zero", Error, "adv_014")
        .when(isOff("TRANS/RULES/cnctType"), is("TRANS/RULES/cnctTimer", "0"))
        .naming("TRANS/RULES/cnctTimer", "TRANS/RULES/cnctType"));

inline constexpr auto kRecordRules = rulesOf(rule("record_format", Hint, "adv_015")
                                                 .when(isNot(kFormatPath, kWholeFormat))
                                                 .naming(kFormatPath)
                                                 .telling(valueOf(kFormatPath))
                                                 .mending(kFormatPath, kWholeFormat),
                                             rule("record_nearly_full", Hint, "adv_016")
                                                 .when(recordAbove(kCloseRecordBytes))
                                                 .naming(kMaskPath)
                                                 .telling(recordBytes(), mostBytes()),
                                             rule("record_no_coordinates", Warning, "adv_017")
                                                 .when(lacks(at<field("Latitude")>))
                                                 .naming(kMaskPath)
                                                 .ticking(at<field("Latitude")>));

} // namespace vlk::review::advice
