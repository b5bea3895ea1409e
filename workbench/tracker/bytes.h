#pragma once

// Little-endian numbers and fields of fixed width at the end of a byte array.

#include <QByteArray>
#include <QtEndian>

#include <algorithm>

namespace tracker {

template <typename T>
void append(QByteArray& bytes, T value)
{
    const T little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

// Cut or filled with zeros.
inline void appendText(QByteArray& bytes, const QByteArray& text, int width)
{
    bytes.append(text.left(width)).append(width - std::min(width, text.size()), '\0');
}

} // namespace tracker
