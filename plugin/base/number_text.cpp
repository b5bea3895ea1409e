#include "base/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vlk {

int leadingInt(const QString& text)
{
    return static_cast<int>(std::strtoll(text.toLatin1().constData(), nullptr, 10));
}

double leadingDouble(const QString& text)
{
    const QByteArray bytes = text.trimmed().toLatin1();
    const char* begin = bytes.startsWith('+') ? bytes.begin() + 1 : bytes.begin();
    double number = 0;
    std::from_chars(begin, bytes.end(), number);
    return std::isfinite(number) ? number : 0;
}

} // namespace vlk
