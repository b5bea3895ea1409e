#pragma once

// The lists of the Transfer page: what their items stand for in the file, and what a roaming mode lets the
// user set.

#include "windows/choices.h"

#include <iterator>

namespace vlk {

inline constexpr Choice kProtocols[] = {
    {"K5.2", "K5.2"},          {"K6", "K6"},     {"EGTS", "cfgt1_012"},
    {"EGTSAUTH", "cfgt1_013"}, {"ZETA", "ZETA"}, {"UNDS", "cfgt1_014"},
};
inline constexpr auto kDefaultProtocol = "ZETA";
// Written when no known protocol is selected.
inline constexpr auto kNoProtocol = "VLKB_ZETA";

inline constexpr Choice kTransports[] = {{"TCP", "TCP"}, {"UDP", "UDP"}};
inline constexpr auto kDefaultTransport = "TCP";

// The server lists never reach the file.
inline constexpr Choice kServerTypes[] = {
    {"1", "cfgt1_010"}, {"2", "cfgt1_011", "%1 1"}, {"3", "cfgt1_011", "%1 2"}};
inline constexpr Choice kServerSelections[] = {{"0", "cfgt1_008"}, {"1", "cfgt1_009"}};

// Address of a server that is not used.
inline constexpr auto kNoServer = "0.0.0.0";

inline constexpr Choice kConnectTypes[] = {{"1", "cfgt1_015"}, {"0", "cfgt1_016"}};

inline constexpr Choice kRoamingModes[] = {
    {"0", "cfgt1_017"}, {"1", "cfgt1_018"}, {"2", "cfgt1_019"}, {"3", "cfgt1_020"}};
inline constexpr int kDefaultRoamingMode = 2;

struct RoamingRule
{
    bool bans; // of calls and SMS
    bool connectPeriod;
    bool recordPeriods; // in motion and parked
    bool block;
};

// One a roaming mode.
inline constexpr RoamingRule kRoamingRules[] = {
    {true, false, false, true},
    {true, true, false, true},
    {false, false, false, false},
    {true, false, true, true},
};
static_assert(std::size(kRoamingRules) == std::size(kRoamingModes));

} // namespace vlk
