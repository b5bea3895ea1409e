#pragma once

// The head that stands in front of the payload of a telemetry record: type, protocol version, mask. An extra
// packet begins with its type too, and goes on in its own way (extra_packet.h).

#include "catalogue/field_mask.h"

#include <algorithm>
#include <span>

namespace vlk {

inline constexpr std::uint8_t kTelemetryRecord = 176;
inline constexpr std::uint8_t kExtraPacket = 177;

inline constexpr std::uint8_t kProtocol1 = 10;
inline constexpr std::uint8_t kProtocol2 = 20;
inline constexpr std::uint8_t kProtocol3 = 30;

struct RecordHead
{
    static constexpr std::size_t kBytes = FieldMask::kHeadBytes;

    std::uint8_t type = 0;
    std::uint8_t ver = 0;
    FieldMask mask;
};

// Bytes that never came count as 0.
inline RecordHead readHead(std::span<const std::uint8_t> record)
{
    RecordHead head;
    FieldMask::Bytes mask{};
    if (record.size() >= RecordHead::kBytes)
        std::copy_n(record.begin() + 2, mask.size(), mask.begin());
    else if (record.size() > 2)
        std::ranges::copy(record.subspan(2), mask.begin());
    head.mask = FieldMask(mask);
    if (!record.empty())
        head.type = record[0];
    if (record.size() > 1)
        head.ver = record[1];
    return head;
}

// What stands behind the first `head` bytes.
inline std::span<const std::uint8_t> behind(std::span<const std::uint8_t> record, std::size_t head)
{
    return record.subspan(std::min(record.size(), head));
}

// The bytes that a message brought; a null pointer or a negative size brings none.
inline std::span<const std::uint8_t> bytesAt(const void* data, std::ptrdiff_t size)
{
    if (!data || size <= 0)
        return {};
    return {static_cast<const std::uint8_t*>(data), static_cast<std::size_t>(size)};
}

} // namespace vlk
