#pragma once

// What tells one record of a tracker from another.

#include "telemetry/files/raw_values.h"
#include "telemetry/record/record_store.h"

#include <compare>
#include <tuple>

namespace workbench::command {

struct RecordKey
{
    quint32 time = 0;
    quint32 number = 0;
    bool isPacket = false;

    std::strong_ordering operator<=>(const RecordKey& other) const
    {
        return std::tie(time, number, isPacket) <=> std::tie(other.time, other.number, other.isPacket);
    }
    bool operator==(const RecordKey&) const = default;
};

inline RecordKey keyOf(const vlk::RecordStore& store, int record)
{
    const auto bytes = store.bytes(record);
    const auto word = [&](vlk::ElementIndex index) {
        const int offset = store.layout(record).offsetOf(index);
        const bool isThere = offset >= 0 && bytes.size() >= offset + sizeof(quint32);
        return isThere ? static_cast<quint32>(vlk::rawAt(bytes.data() + offset, sizeof(quint32))) : 0;
    };
    return {word(vlk::element("Time")), word(vlk::element("NumPage")), store.layout(record).isPacket()};
}

} // namespace workbench::command
