#pragma once

// Many records and extra packets, packed as they came, in the order in which they came. A record of the
// default mask takes some 65 bytes; it is decoded when it is looked at, and a column of one value over all
// records is decoded at once (record_columns.h).
//
//     store.add(bytes);                     a record from its type byte on
//     auto page = store.at(7);              decoded, an object of its own
//     store.decode(page, 8);                into an object that is there already
//     store.forEach([](const TmiPage_Zeta3& page) { ... });
//
// How the bytes of a record are laid out stands once for all records of one type, version and mask.

#include "telemetry/record/tmi_page_zeta3.h"

#include <cstdint>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

namespace vlk {

struct RecordLayout
{
    enum Form : std::uint8_t {
        Record,      // the fields of `held`, packed
        OtherRecord, // bytes of which nothing is known
        Packet,      // an extra packet from its type byte on
        PacketParts, // the head of an extra packet, then its area
    };

    Form form = Record;
    std::uint8_t type = 0;
    std::uint8_t ver = 0;
    FieldMask mask; // the fields that the record says that it has
    FieldMask held; // the fields that have bytes; files may bring more than `mask` says

    bool isPacket() const { return form == Packet || form == PacketParts; }
    // Whether such records tell the element; a packet tells those of its head.
    bool has(ElementIndex index) const;
    // Where the element stands in the bytes, told or not; -1 if they do not hold it.
    int offsetOf(ElementIndex index) const;

    bool operator==(const RecordLayout&) const = default;
};

class RecordStore
{
public:
    RecordStore() = default;

    // From the type byte on, as it came from the tracker or stands in a binary file. Of more than 65,535
    // bytes the first are kept.
    void add(std::span<const std::uint8_t> record);
    // From the parts that a telemetry file gives: the block has every field at its place.
    void add(std::uint8_t ver, const FieldMask& mask, const TmiPage_Zeta3::ValueBlock& block);
    // A packed record: `payload` has the fields of `layout.held`.
    void add(const RecordLayout& layout, std::span<const std::uint8_t> payload);
    void add(const ExtraPacket& packet);
    // The zone stays.
    void clear();

    int size() const { return static_cast<int>(places_.size()); }
    bool empty() const { return places_.empty(); }

    const RecordLayout& layout(int record) const { return layouts_[layoutNumber(record)]; }
    std::size_t layoutNumber(int record) const { return places_[record].layout; }
    const std::vector<RecordLayout>& layouts() const { return layouts_; }
    std::span<const std::uint8_t> bytes(int record) const
    {
        const Place place = places_[record];
        const std::uint8_t* const length = pieces_[place.piece].data() + place.offset;
        return {length + kLengthBytes, qFromLittleEndian<quint16>(length)};
    }

    void decode(TmiPage_Zeta3& page, int record) const;
    std::unique_ptr<TmiPage_Zeta3> at(int record) const;
    template <class Visit>
    void forEach(Visit&& visit) const
    {
        TmiPage_Zeta3 page;
        for (int record = 0; record < size(); ++record) {
            decode(page, record);
            visit(std::as_const(page));
        }
    }

    // The fields that any of the records has; packets have no mask.
    FieldMask fields() const;
    bool hasPackets() const;

    // The zone in which times are shown, in seconds east of UTC; the local one until another was given.
    std::optional<qint32> utcOffset() const { return utcOffset_; }
    void setUtcOffset(std::optional<qint32> seconds) { utcOffset_ = seconds; }

private:
    static constexpr std::size_t kLengthBytes = sizeof(std::uint16_t);

    struct Place
    {
        std::uint64_t piece : 20;
        std::uint64_t offset : 20;
        std::uint64_t layout : 24;
    };
    struct LayoutHash
    {
        std::size_t operator()(const RecordLayout& layout) const;
    };

    std::size_t numberOf(const RecordLayout& layout);
    void put(std::size_t layout, std::span<const std::uint8_t> bytes);

    // Pieces of memory, in which each record stands behind its length in two bytes.
    std::vector<std::vector<std::uint8_t>> pieces_;
    std::vector<Place> places_;
    std::vector<RecordLayout> layouts_;
    std::unordered_map<RecordLayout, std::size_t, LayoutHash> numbers_;
    std::size_t lastLayout_ = 0;
    // The head and layout of the record that came whole last: mostly the next one has the same.
    std::array<std::uint8_t, FieldMask::kHeadBytes> head_{};
    std::size_t layoutOfHead_ = 0;
    std::optional<qint32> utcOffset_;
};

} // namespace vlk
