#include "telemetry/record/record_store.h"

#include "telemetry/record/record_head.h"

#include <algorithm>
#include <functional>
#include <limits>

namespace vlk {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kPieceBytes = 1 << 20;
constexpr std::size_t kLeastPieceBytes = 1 << 12;
constexpr std::size_t kPieceGrowth = 4;
constexpr std::size_t kLongest = std::numeric_limits<std::uint16_t>::max();

FieldMask fieldsOf(const FieldMask& left, const FieldMask& right)
{
    FieldMask::Bytes bytes;
    std::ranges::transform(left.bytes(), right.bytes(), bytes.begin(), std::bit_or<>());
    return FieldMask(bytes);
}

// The fields of which the block holds something, whatever a mask says.
FieldMask fieldsIn(const TmiPage_Zeta3::ValueBlock& block)
{
    FieldMask fields;
    for (int i = 0; i < kFieldCount; ++i) {
        const Bytes field = Bytes(block).subspan(kFields[i].offset, kFields[i].width);
        fields.set(i, std::ranges::any_of(field, [](std::uint8_t byte) { return byte != 0; }));
    }
    return fields;
}

int packedOffset(const FieldMask& mask, ElementIndex index)
{
    const Element& element = kElements[index];
    if (!mask.test(element.field))
        return -1;
    return mask.payloadSize(element.field) + element.offset - kFields[element.field].offset;
}

} // namespace

bool RecordLayout::has(ElementIndex index) const
{
    return isPacket() ? offsetOf(index) >= 0 : mask.test(kElements[index].field);
}

int RecordLayout::offsetOf(ElementIndex index) const
{
    if (form == Record)
        return packedOffset(held, index);
    const auto* row =
        std::ranges::find(ExtraPacket::kElementsOfHead, index, &ExtraPacket::HeadElement::element);
    return isPacket() && row != ExtraPacket::kElementsOfHead.end() ? row->offset : -1;
}

std::size_t RecordStore::LayoutHash::operator()(const RecordLayout& layout) const
{
    const auto text = [](const FieldMask& mask) {
        return std::string_view(reinterpret_cast<const char*>(mask.bytes().data()), FieldMask::kBytes);
    };
    constexpr std::hash<std::string_view> hash;
    return hash(text(layout.mask)) ^ hash(text(layout.held)) << 1 ^ layout.ver ^ layout.form << 8;
}

void RecordStore::add(Bytes record)
{
    const bool hasHead = record.size() >= head_.size();
    const bool isKnown = head_[0] == kTelemetryRecord;
    if (isKnown && hasHead && std::equal(head_.begin(), head_.end(), record.begin()))
        return put(layoutOfHead_, behind(record, RecordHead::kBytes));
    const RecordHead head = readHead(record);
    if (head.type == kExtraPacket)
        return add(RecordLayout{RecordLayout::Packet, head.type, 0, {}, {}}, record);
    const RecordLayout::Form form =
        head.type == kTelemetryRecord ? RecordLayout::Record : RecordLayout::OtherRecord;
    add(RecordLayout{form, head.type, head.ver, head.mask, head.mask}, behind(record, RecordHead::kBytes));
    if (!hasHead)
        return;
    std::copy_n(record.begin(), head_.size(), head_.begin());
    layoutOfHead_ = lastLayout_;
}

void RecordStore::add(std::uint8_t ver, const FieldMask& mask, const TmiPage_Zeta3::ValueBlock& block)
{
    const FieldMask held = fieldsOf(mask, fieldsIn(block));
    std::array<std::uint8_t, kBlockBytes> payload;
    auto end = payload.begin();
    for (int i = 0; i < kFieldCount; ++i) {
        if (held.test(i))
            end = std::copy_n(block.begin() + kFields[i].offset, kFields[i].width, end);
    }
    add(RecordLayout{RecordLayout::Record, kTelemetryRecord, ver, mask, held}, {payload.begin(), end});
}

void RecordStore::add(const ExtraPacket& packet)
{
    std::vector<std::uint8_t> parts(packet.head().begin(), packet.head().end());
    parts.insert(parts.end(), packet.area().begin(), packet.area().end());
    add(RecordLayout{RecordLayout::PacketParts, kExtraPacket, 0, {}, {}}, parts);
}

void RecordStore::clear()
{
    const auto zone = utcOffset_;
    *this = {};
    utcOffset_ = zone;
}

std::size_t RecordStore::numberOf(const RecordLayout& layout)
{
    if (lastLayout_ < layouts_.size() && layouts_[lastLayout_] == layout)
        return lastLayout_;
    const auto [place, isNew] = numbers_.try_emplace(layout, layouts_.size());
    if (isNew)
        layouts_.push_back(layout);
    lastLayout_ = place->second;
    return lastLayout_;
}

void RecordStore::add(const RecordLayout& layout, Bytes bytes)
{
    put(numberOf(layout), bytes);
}

void RecordStore::put(std::size_t layout, Bytes bytes)
{
    bytes = bytes.first(std::min(bytes.size(), kLongest));
    const std::size_t size = kLengthBytes + bytes.size();
    if (pieces_.empty() || pieces_.back().size() + size > pieces_.back().capacity()) {
        // Many a store holds few records.
        const std::size_t larger = pieces_.empty() ? 0 : kPieceGrowth * pieces_.back().capacity();
        pieces_.emplace_back();
        pieces_.back().reserve(std::max(std::clamp(larger, kLeastPieceBytes, kPieceBytes), size));
    }
    std::vector<std::uint8_t>& piece = pieces_.back();
    places_.push_back({pieces_.size() - 1, piece.size(), layout});
    piece.push_back(static_cast<std::uint8_t>(bytes.size() & 0xFF));
    piece.push_back(static_cast<std::uint8_t>(bytes.size() >> 8));
    piece.insert(piece.end(), bytes.begin(), bytes.end());
}

void RecordStore::decode(TmiPage_Zeta3& page, int record) const
{
    page.setStored(layout(record), bytes(record));
    page.setUtcOffset(utcOffset_);
}

std::unique_ptr<TmiPage_Zeta3> RecordStore::at(int record) const
{
    auto page = std::make_unique<TmiPage_Zeta3>();
    decode(*page, record);
    return page;
}

FieldMask RecordStore::fields() const
{
    FieldMask fields;
    for (const RecordLayout& layout : layouts_)
        fields = fieldsOf(fields, layout.mask);
    return fields;
}

bool RecordStore::hasPackets() const
{
    return std::ranges::any_of(layouts_, &RecordLayout::isPacket);
}

} // namespace vlk
