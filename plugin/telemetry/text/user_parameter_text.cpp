#include "telemetry/text/user_parameter_text.h"

#include <bit>

namespace vlk {

namespace {

QString binaryDigits(quint64 raw, int bytes)
{
    QString digits;
    for (int bit = 8 * bytes - 1; bit >= 0; --bit) {
        digits += QLatin1Char((raw >> bit & 1) != 0 ? '1' : '0');
        if (bit % 8 == 0 && bit != 0)
            digits += QLatin1String("   ");
    }
    return digits;
}

qint64 withSign(quint64 raw, int bytes)
{
    const int unused = 64 - 8 * bytes;
    return static_cast<qint64>(raw << unused) >> unused;
}

} // namespace

QString userParameterText(quint64 raw, int bytes, char typeLetter)
{
    switch (typeLetter) {
    case 's':
        return QString::number(withSign(raw, bytes));
    case 'b':
        return binaryDigits(raw, bytes);
    case 'f':
        if (bytes == 4)
            return QString::number(std::bit_cast<float>(static_cast<quint32>(raw)), 'f', 6);
        if (bytes == 8)
            return QString::number(std::bit_cast<double>(raw), 'f', 6);
        break;
    default:
        break;
    }
    return QString::number(raw);
}

} // namespace vlk
