#include "telemetry/text/user_parameter_text.h"

#include <bit>

namespace vlk {

namespace {

void addBinaryDigits(AsciiText& text, quint64 raw, int bytes)
{
    for (int bit = 8 * bytes - 1; bit >= 0; --bit) {
        text << ((raw >> bit & 1) != 0 ? '1' : '0');
        if (bit % 8 == 0 && bit != 0)
            text << "   ";
    }
}

qint64 withSign(quint64 raw, int bytes)
{
    const int unused = 64 - 8 * bytes;
    return static_cast<qint64>(raw << unused) >> unused;
}

} // namespace

void addUserParameter(AsciiText& text, quint64 raw, int bytes, char typeLetter)
{
    if (typeLetter == 's')
        text << withSign(raw, bytes);
    else if (typeLetter == 'b')
        addBinaryDigits(text, raw, bytes);
    else if (typeLetter == 'f' && bytes == 4)
        text.addFixed(std::bit_cast<float>(static_cast<quint32>(raw)), 6);
    else if (typeLetter == 'f' && bytes == 8)
        text.addFixed(std::bit_cast<double>(raw), 6);
    else
        text << raw;
}

} // namespace vlk
