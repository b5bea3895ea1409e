#include "telemetry/files/xml_page.h"

#include "base/windows1251.h"
#include "telemetry/files/value_reading.h"
#include "telemetry/record/record_head.h"

#include <algorithm>

namespace vlk {

namespace {

// The text of a card has to fit its size in the local encoding too.
QByteArray cardBytes(std::string_view value, int size)
{
    QString text = textOf(value).left(size);
    QByteArray bytes = text.toLocal8Bit();
    while (bytes.size() > size) {
        text.chop(1);
        bytes = text.toLocal8Bit();
    }
    return bytes;
}

} // namespace

QString textOf(std::string_view bytes)
{
    return fromWindows1251(QByteArray(bytes.data(), static_cast<int>(bytes.size())));
}

XmlPage::XmlPage(std::string line, qint64 at)
    : line_(std::move(line)), at_(at), type_(numberAttribute<quint8>(line_, "type"))
{
}

bool XmlPage::isRecord() const
{
    return type_ == kTelemetryRecord || type_ == kExtraPacket;
}

void XmlPage::take(std::string_view line)
{
    std::optional<ElementIndex> read;
    if (type_ == kTelemetryRecord) {
        const ElementLine parts = elementLine(line);
        read = findElement(parts.tag);
        if (read)
            readValue(*read, parts.value, block_.data() + kElements[*read].offset);
    } else if (type_ == kExtraPacket && line.find("<Dynamic") != line.npos) {
        readEntry(line);
    } else if (type_ == kExtraPacket) {
        read = readPacketElement(line);
    }
    if (read)
        seen_.set(*read);
}

std::optional<ElementIndex> XmlPage::readPacketElement(std::string_view line)
{
    const ElementLine parts = elementLine(line);
    const auto named = [&](const ExtraPacket::HeadElement& row) {
        return kElements[row.element].name == parts.tag;
    };
    const auto row = std::ranges::find_if(ExtraPacket::kElementsOfHead, named);
    if (row == ExtraPacket::kElementsOfHead.end())
        return std::nullopt;
    readValue(row->element, parts.value, head_.data() + row->offset);
    return row->element;
}

void XmlPage::readEntry(std::string_view line)
{
    const auto type = numberAttribute<quint8>(line, "type");
    const auto size = numberAttribute<quint8>(line, "size");
    const std::string_view value = attribute(line, "value");
    const std::array<std::uint8_t, ExtraPacket::kEntryHeadBytes> head{type, size};
    putInArea(0, head);
    if (type == ExtraEntry::Card) {
        const QByteArray bytes = cardBytes(value, size);
        putInArea(head.size(), bytesAt(bytes.constData(), bytes.size()));
    } else if (type == ExtraEntry::TouchKey || type == ExtraEntry::Rfid) {
        std::array<std::uint8_t, sizeof(quint64)> bytes;
        qToLittleEndian(numberFrom<quint64>(value), bytes.data());
        putInArea(head.size(), bytes);
    }
    areaSize_ += head.size() + size;
}

void XmlPage::putInArea(std::size_t offset, std::span<const std::uint8_t> bytes)
{
    const std::size_t at = areaSize_ + offset;
    if (at < area_.size())
        std::ranges::copy(bytes.first(std::min(bytes.size(), area_.size() - at)), area_.begin() + at);
}

bool XmlPage::isWhole() const
{
    const auto came = [this](ElementIndex index) { return seen_.test(index); };
    if (type_ == kExtraPacket)
        return std::ranges::all_of(ExtraPacket::kElementsOfHead, came, &ExtraPacket::HeadElement::element);
    const FieldMask fields = mask();
    for (int i = 0; i < kElementCount; ++i) {
        if (fields.test(kElements[i].field) && !seen_.test(i))
            return false;
    }
    return true;
}

void XmlPage::addTo(RecordStore& records) const
{
    if (type_ == kTelemetryRecord)
        records.add(ver(), mask(), block_);
    else if (type_ == kExtraPacket)
        records.add(packet());
}

// With what the first line says of it.
ExtraPacket XmlPage::packet() const
{
    auto head = head_;
    head[0] = kExtraPacket;
    head[ExtraPacket::kStVerAt] = numberAttribute<quint8>(line_, "stVer");
    head[ExtraPacket::kStSizeAt] = numberAttribute<quint8>(line_, "stSize");
    head[ExtraPacket::kHVerAt] = numberAttribute<quint8>(line_, "hVer");
    head[ExtraPacket::kHSizeAt] = numberAttribute<quint8>(line_, "hSize");
    const std::size_t size =
        head[ExtraPacket::kStSizeAt] + head[ExtraPacket::kHSizeAt] + ExtraPacket::kBesideHeads + areaSize_;
    qToLittleEndian(static_cast<quint16>(size), head.data() + ExtraPacket::kSizeAt);
    return ExtraPacket::fromParts(head, std::span(area_).first(std::min(areaSize_, area_.size())));
}

} // namespace vlk
