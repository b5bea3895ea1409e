#include "base/number_text.h"

#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace vlk {

namespace {

bool isDigit(QChar sign)
{
    return sign.unicode() >= '0' && sign.unicode() <= '9';
}

} // namespace

qint64 leadingLong(const QString& text)
{
    // Most are a few digits.
    if (text.size() <= 9 && std::all_of(text.begin(), text.end(), isDigit))
        return std::accumulate(text.begin(), text.end(), 0,
                               [](int read, QChar digit) { return 10 * read + (digit.unicode() - '0'); });
    // Short texts stay off the heap.
    QVarLengthArray<char, 32> bytes(text.size() + 1);
    for (int i = 0; i < text.size(); ++i)
        bytes[i] = text[i].unicode() < 0x80 ? static_cast<char>(text[i].unicode()) : '?';
    bytes[text.size()] = '\0';
    return std::strtoll(bytes.constData(), nullptr, 10);
}

int leadingInt(const QString& text)
{
    return static_cast<int>(leadingLong(text));
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
