#pragma once

// The search for Bluetooth devices around the tracker: it begins, finds sensors and other devices one by one,
// some of one name, one late, and ends. Without Bluetooth, or with Bluetooth switched off in the
// configuration, it fails at once.

#include "tracker/answer.h"

namespace tracker {

// How a search goes, as BtSearchEvent and BtSearchStopped carry it: a character.
inline constexpr char kSearchRuns = '0';
inline constexpr char kSearchEnded = '1';
inline constexpr char kSearchFailed = '2';
inline constexpr char kSearchStopped = '3';

constexpr bool isSearchState(char state)
{
    return state >= kSearchRuns && state <= kSearchStopped;
}

Answers searchBluetooth(bool switchedOn);
Answers stopBluetoothSearch();

} // namespace tracker
