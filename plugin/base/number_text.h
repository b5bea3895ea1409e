#pragma once

// Numbers out of texts as configuration files hold them, independent of the locale: as far as the text is a
// number, so that "12abc" is 12 and "abc" is 0.

#include <QString>

namespace vlk {

// The nearest one that fits.
qint64 leadingLong(const QString& text);
// Larger numbers keep their low 32 bits.
int leadingInt(const QString& text);
// The decimal sign is the point; what is no finite number is 0.
double leadingDouble(const QString& text);
bool isWholeNumber(const QString& text);
// The digit at a position, 0 where there is none.
int digitAt(const QString& text, std::size_t position);

// `value` as a text, which is `text` itself where it spells the same.
QString spelled(QLatin1String value, const QString& text);
QString spelled(qint64 number, const QString& text);

} // namespace vlk
