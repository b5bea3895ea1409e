#pragma once

// Version of the program. Files of configurations tell its first three numbers, "3.3.0".

#include <QString>

#include <cstdint>

namespace vlk {

inline constexpr std::int32_t kProgramVersion[] = {3, 3, 0, 2};

inline QString fileVersionText()
{
    return QStringLiteral("%1.%2.%3").arg(kProgramVersion[0]).arg(kProgramVersion[1]).arg(kProgramVersion[2]);
}

} // namespace vlk
