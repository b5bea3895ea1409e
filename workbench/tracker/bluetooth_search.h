#pragma once

// The search for Bluetooth devices around the tracker: it begins, finds a few one by one, and ends. With
// Bluetooth switched off in the configuration it fails at once.

#include "tracker/answer.h"

namespace tracker {

Answers searchBluetooth(bool switchedOn);
Answers stopBluetoothSearch();

} // namespace tracker
