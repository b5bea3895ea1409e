#pragma once

// What stands in the place of a value that the record lacks, and what its tool tip says.

#include <QCoreApplication>

namespace vlk {

inline constexpr QChar kAbsentMark(0x2013);

inline QString absentTip()
{
    return QCoreApplication::translate("vlk", "tmiw_170");
}

} // namespace vlk
