#pragma once

// The settings of the section TRANS: access point of the SIM, three servers, rules of the connection,
// roaming, encryption, the remote service, and the two lists of operators.

#include "settings/settings_table.h"

namespace vlk {

// Rows of the list of operators in roaming.
inline constexpr int kRoamingRows = 10;

extern const SettingsTable kTransferSettings;

} // namespace vlk
