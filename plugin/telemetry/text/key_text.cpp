#include "telemetry/text/key_text.h"

namespace vlk {

QString keyHexText(quint64 number)
{
    return QString::number(number, 16).toUpper().rightJustified(12, QLatin1Char('0'));
}

QString keyText(quint64 number)
{
    return QString::number(number) + QLatin1String(" (0x") + keyHexText(number) + QLatin1Char(')');
}

} // namespace vlk
