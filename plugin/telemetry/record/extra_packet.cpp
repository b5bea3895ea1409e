#include "telemetry/record/extra_packet.h"

#include <algorithm>

namespace vlk {

namespace {

// What an entry takes behind its type and size.
std::size_t entryBytes(std::uint8_t type, std::uint8_t size)
{
    switch (type) {
    case ExtraEntry::TouchKey:
    case ExtraEntry::Rfid:
        return 8;
    case ExtraEntry::Card:
        return 16;
    default:
        return size;
    }
}

} // namespace

std::uint64_t ExtraEntry::number() const
{
    std::uint64_t number = 0;
    const std::size_t bytes = std::min(value.size(), sizeof(number));
    for (std::size_t i = 0; i < bytes; ++i)
        number |= std::uint64_t{value[i]} << 8 * i;
    return number;
}

QString ExtraEntry::text() const
{
    const auto end = std::ranges::find(value, 0);
    return QString::fromLocal8Bit(reinterpret_cast<const char*>(value.data()),
                                  static_cast<int>(end - value.begin()));
}

ExtraPacket ExtraPacket::fromRecord(std::span<const std::uint8_t> packet)
{
    ExtraPacket extra;
    extra.takeHead(packet, kHeadBytes);
    extra.takeArea(
        packet, kUncountedBytes + extra.countedBytes(),
        static_cast<std::uint16_t>(extra.countedBytes() - extra.stSize() - extra.hSize() - kBesideHeads));
    return extra;
}

ExtraPacket ExtraPacket::fromKeyAnswer(std::span<const std::uint8_t> packet)
{
    ExtraPacket extra;
    extra.takeHead(packet, kHVerAt);
    const auto areaSize = static_cast<std::uint16_t>(extra.countedBytes() - extra.stSize() - 2);
    // The area is the last bytes of the answer. An answer cut short gives those bytes of it that came.
    const std::ptrdiff_t end =
        std::max<std::ptrdiff_t>(std::ssize(packet), kUncountedBytes + extra.countedBytes());
    extra.takeArea(packet, end, areaSize);
    if (end >= areaSize && end - areaSize < kHVerAt)
        std::ranges::fill(extra.head_.begin() + (end - areaSize), extra.head_.end(), 0);
    return extra;
}

ExtraPacket ExtraPacket::fromParts(std::span<const std::uint8_t> head, std::span<const std::uint8_t> area)
{
    ExtraPacket extra;
    extra.takeHead(head, kHeadBytes);
    extra.takeArea(area, std::ssize(area), static_cast<std::uint16_t>(area.size()));
    return extra;
}

void ExtraPacket::takeHead(std::span<const std::uint8_t> packet, std::size_t bytes)
{
    std::ranges::copy(packet.first(std::min(packet.size(), bytes)), head_.begin());
}

void ExtraPacket::takeArea(std::span<const std::uint8_t> packet, std::ptrdiff_t end, std::uint16_t size)
{
    const std::ptrdiff_t begin = end - size;
    if (begin < 0 || begin >= std::ssize(packet))
        return;
    const std::ptrdiff_t kept = std::min<std::ptrdiff_t>({size, kAreaBytes, std::ssize(packet) - begin});
    std::ranges::copy(packet.subspan(begin, kept), area_.begin());
    areaSize_ = static_cast<std::uint16_t>(kept);
}

ExtraEntry ExtraPacket::takeEntry(std::span<const std::uint8_t>& rest)
{
    ExtraEntry entry{rest[0], rest[1], rest.subspan(kEntryHeadBytes)};
    entry.value = entry.value.first(std::min(entry.value.size(), entryBytes(entry.type, entry.size)));
    rest = rest.subspan(kEntryHeadBytes + entry.value.size());
    return entry;
}

const std::uint8_t* ExtraPacket::find(ElementIndex index) const
{
    const auto* row = std::ranges::find(kElementsOfHead, index, &HeadElement::element);
    return row == kElementsOfHead.end() ? nullptr : head_.data() + row->offset;
}

} // namespace vlk
