#pragma once

// The GSM signal quality of a record, 0 to 31, as percent.

#include <algorithm>
#include <cstdint>

namespace vlk {

inline constexpr double kPercentPerSignalStep = 3.22;
inline constexpr std::uint8_t kNoSignalLevel = 99; // and all above

// How a bar writes its level.
inline constexpr char kLevelFormat[] = "%p %";

// For a level bar, 0 to 100; without a level 0.
constexpr int signalPercent(std::uint8_t level)
{
    return level >= kNoSignalLevel ? 0 : std::min(static_cast<int>(level * kPercentPerSignalStep), 100);
}

} // namespace vlk
