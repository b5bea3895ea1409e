#include "base/number_text.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
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
    if (text.size() <= 9 && std::ranges::all_of(text, isDigit))
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

bool isWholeNumber(const QString& text)
{
    bool whole = false;
    text.trimmed().toLongLong(&whole);
    return whole;
}

int digitAt(const QString& text, std::size_t position)
{
    const int index = static_cast<int>(position);
    return index < text.size() ? std::max(0, text[index].digitValue()) : 0;
}

QString spelled(QLatin1String value, const QString& text)
{
    return text == value ? text : QString(value);
}

QString spelled(qint64 number, const QString& text)
{
    std::array<char, 20> digits{}; // "-9223372036854775808"
    const char* const end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return spelled(QLatin1String(digits.begin(), static_cast<int>(end - digits.begin())), text);
}

} // namespace vlk
