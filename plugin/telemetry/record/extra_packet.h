#pragma once

// An extra packet: a fixed head with the last navigation data, and an area of typed entries, such as a touch
// key or a card that was read. It comes on the telemetry road between the records, or as the answer to the
// question for the last key.
//
// Elements of the head are read as those of a record are: packet.value<element("Latitude")>().
// Nothing is read beyond the bytes given, however the sizes in the head contradict each other or them: what
// did not come counts as 0, and an area that cannot lie in the packet counts as empty.

#include "telemetry/record/element_values.h"

#include <QString>

#include <span>

namespace vlk {

// One entry of the area.
struct ExtraEntry
{
    enum Type : std::uint8_t { TouchKey = 1, Card = 2, Rfid = 3 };

    std::uint8_t type = 0;
    std::uint8_t size = 0;               // as the entry says; the value may have other bytes
    std::span<const std::uint8_t> value; // the bytes that are there, in the packet that was walked

    // The value of a key: little-endian, of 8 bytes at most.
    std::uint64_t number() const;
    // The text of a card, in the local 8-bit encoding, up to its first zero byte.
    QString text() const;
};

class ExtraPacket : public ElementValues<ExtraPacket>
{
public:
    static constexpr int kHeadBytes = 58;
    static constexpr int kAreaBytes = 256;

    // Places of the sizes and versions in the head. The size counts the bytes that follow it; the area is
    // what neither of the heads takes, nor the two bytes in front of each.
    static constexpr int kSizeAt = 1;
    static constexpr int kStVerAt = 3;
    static constexpr int kStSizeAt = 4;
    static constexpr int kHVerAt = 42;
    static constexpr int kHSizeAt = 43;
    static constexpr int kUncountedBytes = 3;
    static constexpr int kBesideHeads = 4;
    static constexpr std::size_t kEntryHeadBytes = 2;

    // The elements of the head in the order of their bytes, with their places in the packet.
    struct HeadElement
    {
        ElementIndex element;
        std::uint8_t offset;
    };
    static constexpr std::array<HeadElement, 16> kElementsOfHead{{
        {element("NumPage"), 5},
        {element("Code"), 9},
        {element("Time"), 11},
        {element("StateNGauge"), 15},
        {element("LastTime"), 16},
        {element("Latitude"), 20},
        {element("Longitude"), 24},
        {element("Altitude"), 28},
        {element("Speed"), 32},
        {element("Course"), 36},
        {element("Run"), 38},
        {element("State"), 44},
        {element("StateOut1"), 45},
        {element("StateIn_Imp1"), 46},
        {element("StateIn_Imp2"), 50},
        {element("Motochas"), 54},
    }};

    ExtraPacket() = default;

    // A packet of the telemetry road, from its type byte on.
    static ExtraPacket fromRecord(std::span<const std::uint8_t> packet);

    // The answer to the question for the last key (message 2312), from its type byte on. It has no second
    // head: State, outputs, counters and engine hours count as 0.
    static ExtraPacket fromKeyAnswer(std::span<const std::uint8_t> packet);

    // From the parts that a telemetry file gives; the sizes in the head are not looked at.
    static ExtraPacket fromParts(std::span<const std::uint8_t> head, std::span<const std::uint8_t> area);

    std::uint8_t type() const { return head_[0]; }
    std::uint16_t countedBytes() const { return qFromLittleEndian<quint16>(head_.data() + kSizeAt); }
    std::uint8_t stVer() const { return head_[kStVerAt]; }
    std::uint8_t stSize() const { return head_[kStSizeAt]; }
    std::uint8_t hVer() const { return head_[kHVerAt]; }
    std::uint8_t hSize() const { return head_[kHSizeAt]; }

    // The first bytes of the packet, up to the area.
    std::span<const std::uint8_t> head() const { return head_; }
    // The bytes of the entries that came, kAreaBytes at most.
    std::span<const std::uint8_t> area() const { return {area_.data(), areaSize_}; }

    // Calls visit(const ExtraEntry&) for each entry in order. Keys take 8 bytes and cards 16, whatever their
    // size byte says; the last entry may be cut by the end of the area.
    template <class Visit>
    void forEachEntry(Visit&& visit) const
    {
        for (std::span<const std::uint8_t> rest = area(); rest.size() >= kEntryHeadBytes;)
            visit(takeEntry(rest));
    }

    const std::uint8_t* find(ElementIndex index) const;

private:
    // Copies what there is of the first `bytes` bytes of the packet.
    void takeHead(std::span<const std::uint8_t> packet, std::size_t bytes);
    // Copies what there is of an area of `size` bytes that ends at `end`.
    void takeArea(std::span<const std::uint8_t> packet, std::ptrdiff_t end, std::uint16_t size);
    // The entry at the front, and `rest` moved behind it.
    static ExtraEntry takeEntry(std::span<const std::uint8_t>& rest);

    std::array<std::uint8_t, kHeadBytes> head_{};
    std::array<std::uint8_t, kAreaBytes> area_{};
    std::uint16_t areaSize_ = 0;
};

} // namespace vlk
