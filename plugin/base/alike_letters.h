#pragma once

// Cyrillic letters that look like Latin ones, which people and headings write in their place.

#include <QString>

namespace vlk {

// The Latin letter that a small Cyrillic one looks like; any other letter as it is.
inline QChar latinAlike(QChar letter)
{
    static const QString cyrillic = QStringLiteral("авекмнорстух");
    static const QString latin = QStringLiteral("abekmhopctyx");
    const int alike = cyrillic.indexOf(letter);
    return alike < 0 ? letter : latin[alike];
}

} // namespace vlk
