#pragma once

// A telemetry file, however broken: what is read from it, written and read again, is the same.

#include "telemetry/files/telemetry_contents.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vlk {

// XML keeps that a float is zero or no number, not with which sign or bits.
inline bool sameValue(const TmiPage_Zeta3& a, const TmiPage_Zeta3& b, ElementIndex index)
{
    if (!a.has(index) || a.raw(index) == b.raw(index))
        return true;
    const double left = a.number(index);
    const double right = b.number(index);
    return kElements[index].type == ValueType::F32 &&
           (left == right || (std::isnan(left) && std::isnan(right)));
}

inline bool samePage(const TmiPage_Zeta3& a, const TmiPage_Zeta3& b)
{
    bool same = a.mask() == b.mask() && a.number() == b.number() && a.isExtra() == b.isExtra();
    for (int i = 0; i < kElementCount; ++i)
        same = same && sameValue(a, b, static_cast<ElementIndex>(i));
    return same;
}

// Both are decoded, whatever they hold; those that lie alike are not compared value by value.
inline bool sameRecord(const RecordStore& a, const RecordStore& b, int record)
{
    TmiPage_Zeta3 one;
    TmiPage_Zeta3 other;
    a.decode(one, record);
    b.decode(other, record);
    return (a.layout(record) == b.layout(record) && std::ranges::equal(a.bytes(record), b.bytes(record))) ||
           samePage(one, other);
}

template <class Read>
TelemetryContents readFrom(Read read, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

// Gives what the first reading found.
template <class Read, class Write>
TelemetryContents roundTrip(const std::uint8_t* data, std::size_t size, Read read, Write write)
{
    TelemetryContents first =
        readFrom(read, QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!write(file, first.records, {}))
        std::abort();
    const TelemetryContents second = readFrom(read, file.data());
    bool same = second.damages.empty() && first.records.size() == second.records.size();
    for (int record = 0; same && record < first.records.size(); ++record)
        same = sameRecord(first.records, second.records, record);
    if (!same)
        std::abort();
    return first;
}

} // namespace vlk
