#pragma once

// How a record begins, in an answer and in a file: its type, then its version and its mask, or of an extra
// packet its length.

#include "catalogue/field_mask.h"
#include "check/plugin_names.h"

#include <QtGlobal>

namespace workbench {

inline constexpr quint8 kRecordType = 176;
inline constexpr quint8 kPacketType = 177;
inline constexpr int kRecordHead = FieldMask::kHeadBytes;
inline constexpr int kPacketCounted = 3; // type and length, which do not count themselves

} // namespace workbench
