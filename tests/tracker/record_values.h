#pragma once

// What stands in the bytes of the simulated tracker's records, and configurations that ask for fields.

#include "catalogue/field_mask.h"

#include <QByteArray>

#include <cstring>

// Bytes in front of a record's fields.
inline constexpr int kHead = 34;

template <typename T>
T at(const QByteArray& bytes, int offset)
{
    T value{};
    if (offset >= 0 && offset + static_cast<int>(sizeof value) <= bytes.size())
        memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

// The value of an element in a record that holds every field.
template <typename T>
T value(const QByteArray& record, vlk::ElementIndex index)
{
    return at<T>(record, kHead + vlk::kElements[index].offset);
}

inline quint32 numberOf(const QByteArray& record)
{
    return at<quint32>(record, static_cast<quint8>(record.at(0)) == 177 ? 5 : kHead);
}

inline QByteArray dataSet(const QByteArray& format, const std::string& mask)
{
    return "<DEVICE model=\"R-7106\"><PROTOCOL><ZETA format=\"" + format + "\" mask=\"" +
           QByteArray::fromStdString(mask) + "\"/></PROTOCOL></DEVICE>";
}
