#pragma once

// The GSM signal quality of a record, 0 to 31, as percent.

#include "catalogue/field_catalogue.h"

#include <algorithm>

namespace vlk {

inline constexpr Measure kSignalMeasure = kElements[element("GSM")].measure;
inline constexpr auto kNoSignalLevel = static_cast<std::uint8_t>(*kSignalMeasure.noValue); // and all above

// How a bar writes its level.
inline constexpr char kLevelFormat[] = "%p %";

// For a level bar, 0 to 100; without a level 0.
constexpr int signalPercent(std::uint8_t level)
{
    return level >= kNoSignalLevel ? 0 : std::min(static_cast<int>(kSignalMeasure.of(level)), 100);
}

} // namespace vlk
