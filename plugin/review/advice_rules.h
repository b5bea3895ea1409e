#pragma once

#include "review/advice_rule.h"

#include <span>

namespace vlk::review::advice {

// The bytes of a record in front of its fields, and those that it may have with them.
inline constexpr int kRecordHead = 34;
inline constexpr int kMostRecordBytes = 512;

inline constexpr const char* kMaskPath = "PROTOCOL/ZETA/mask";
inline constexpr const char* kFormatPath = "PROTOCOL/ZETA/format";
// The format that holds every field.
inline constexpr const char* kWholeFormat = "30";

// In the order of the pages.
extern const std::span<const Rule> kRules;

} // namespace vlk::review::advice
