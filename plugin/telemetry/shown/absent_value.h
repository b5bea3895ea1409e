#pragma once

// What stands in the place of a value that there is not, and what its tool tip says.

#include <QCoreApplication>

namespace vlk {

inline constexpr QChar kAbsentMark(0x2013);

// Keys: the record lacks the field, or holds the code for no value.
inline constexpr auto kNotInRecord = "tmiw_170";
inline constexpr auto kNoValue = "tmiw_263";

inline QString absentTip(const char* key = kNotInRecord)
{
    return QCoreApplication::translate("vlk", key);
}

} // namespace vlk
