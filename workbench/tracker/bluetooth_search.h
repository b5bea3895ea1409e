#pragma once

// The search for Bluetooth devices around the tracker: it begins, finds sensors and other devices one by one,
// some of one name, one late, and ends. Without Bluetooth, or with Bluetooth switched off in the
// configuration, it fails at once.

#include "tracker/answer.h"

namespace tracker {

Answers searchBluetooth(bool switchedOn);
Answers stopBluetoothSearch();

} // namespace tracker
