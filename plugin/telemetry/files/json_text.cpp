#include "telemetry/files/json_text.h"

namespace vlk {

QByteArray jsonEscaped(const QString& text)
{
    const QByteArray plain = text.toUtf8();
    QByteArray escaped;
    escaped.reserve(plain.size());
    for (const char sign : plain) {
        if (sign == '"' || sign == '\\')
            escaped += '\\';
        if (static_cast<uchar>(sign) >= 0x20)
            escaped += sign;
        else
            escaped += "\\u00" + QByteArray(1, sign).toHex();
    }
    return escaped;
}

} // namespace vlk
