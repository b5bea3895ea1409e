#pragma once

// Version of the program. Files of configurations tell its first three numbers, "3.3.0".

#include <QString>

#include <cstdint>

namespace vlk {

inline constexpr std::int32_t programVersion[] = {3, 3, 0, 2};

inline QString fileVersionText()
{
    return QStringLiteral("%1.%2.%3").arg(programVersion[0]).arg(programVersion[1]).arg(programVersion[2]);
}

} // namespace vlk
