#pragma once

// Texts of the numbers of touch keys and RFID tags.

#include <QString>

namespace vlk {

// "00000000007B": 12 upper-case hexadecimal digits, more where the number needs them.
QString keyHexText(quint64 number);

// "123 (0x00000000007B)".
QString keyText(quint64 number);

} // namespace vlk
