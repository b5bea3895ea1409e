#pragma once

// Which events are worth a mark: one that more than one record in twenty tells is routine, a timer for one.

#include "telemetry/files/record_columns.h"

namespace vlk {

// Those of these records with a rare event, in their order. A code of 0 is none.
std::vector<int> rareEvents(RecordColumns& columns, const std::vector<int>& records);

} // namespace vlk
