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

} // namespace vlk
