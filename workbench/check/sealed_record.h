#pragma once

// The records of live values begin with what tells that they are whole, in bytes that carry no value: the low
// byte of the request's number, the length, and a byte that makes the sum of all bytes zero.

#include "plugin/host/host_interface.h"

#include <numeric>

namespace workbench {

inline constexpr int kSealSize = 4;

inline quint8 sumOf(const QByteArray& record)
{
    return std::accumulate(record.begin(), record.end(), quint8{0}, [](quint8 sum, char byte) {
        return static_cast<quint8>(sum + static_cast<quint8>(byte));
    });
}

inline void seal(QByteArray& record, vlk::Message request)
{
    const int size = record.size();
    record[0] = static_cast<char>(request);
    record[1] = static_cast<char>(size);
    record[2] = static_cast<char>(size >> 8);
    record[3] = 0;
    record[3] = static_cast<char>(-sumOf(record));
}

inline bool isSealed(const QByteArray& record, vlk::Message request)
{
    return record.size() >= kSealSize && record.at(0) == static_cast<char>(request) &&
           (static_cast<quint8>(record.at(1)) | static_cast<quint8>(record.at(2)) << 8) == record.size() &&
           sumOf(record) == 0;
}

} // namespace workbench
