#include "telemetry/files/xml_page.h"

#include "base/windows1251.h"
#include "telemetry/files/file_form.h"
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
    : line_(std::move(line)), at_(at), type_(numberAttribute<quint8>(line_, "type")),
      isSound_(isSoundPageLine(line_))
{
}

bool XmlPage::isRecord() const
{
    return type_ == kTelemetryRecord || type_ == kExtraPacket;
}

void XmlPage::take(std::string_view line)
{
    if (!isRecord())
        return;
    if (type_ == kExtraPacket && line.find("<Dynamic") != line.npos)
        readEntry(line);
    else
        readElement(line);
    const std::optional<std::string_view> whole = lines_.add(line);
    if (!whole || (type_ == kExtraPacket && isSoundEntry(*whole)))
        return;
    isSound_ = isSound_ && isSoundInPage(*whole);
    mixesElements_ = mixesElements_ || !closesItself(*whole);
}

void XmlPage::finish(std::string_view line, qint64 lineAt)
{
    constexpr std::string_view closing = "</Page>";
    end = line.find("<Page") < line.find(closing) ? NextPage : Closing;
    endAt = lineAt;
    nextLine = line;
    const std::string_view behind =
        trimmed(line).starts_with(closing) ? trimmed(trimmed(line).substr(closing.size())) : line;
    const bool isAlone = end == NextPage || behind.empty() || behind.starts_with('<');
    isSound_ = isSound_ && isAlone && trimmed(lines_.takeRest()).empty() && asksForAllThatCame();
}

void XmlPage::readElement(std::string_view line)
{
    const ElementLine parts = elementLine(line);
    const std::optional<ElementIndex> index = findElement(parts.tag);
    std::uint8_t* const place = index ? placeOf(*index) : nullptr;
    if (!place)
        return;
    isSound_ = readValue(*index, parts.value, place) && isSound_ && !seen_.test(*index);
    seen_.set(*index);
}

bool XmlPage::hasItsLine() const
{
    std::string_view line = trimmed(line_);
    line.remove_prefix(std::min(line.find("<Page"), line.size()));
    const std::size_t closing = line.find('>');
    return closing == line.npos ? end == OfFile : closing == line.size() - 1;
}

// None in a packet where its head has no such element.
std::uint8_t* XmlPage::placeOf(ElementIndex index)
{
    if (type_ == kTelemetryRecord)
        return block_.data() + kElements[index].offset;
    const auto row =
        std::ranges::find(ExtraPacket::kElementsOfHead, index, &ExtraPacket::HeadElement::element);
    return row == ExtraPacket::kElementsOfHead.end() ? nullptr : head_.data() + row->offset;
}

void XmlPage::readEntry(std::string_view line)
{
    const std::optional<quint8> typeRead = numberIn<quint8>(attribute(line, "type"));
    const std::optional<quint8> sizeRead = numberIn<quint8>(attribute(line, "size"));
    const quint8 type = typeRead.value_or(0);
    const quint8 size = sizeRead.value_or(0);
    const std::string_view value = attribute(line, "value");
    const std::array<std::uint8_t, ExtraPacket::kEntryHeadBytes> head{type, size};
    isSound_ = isSound_ && typeRead && sizeRead;
    putInArea(0, head);
    if (type == ExtraEntry::Card) {
        const QByteArray bytes = cardBytes(value, size);
        putInArea(head.size(), bytesAt(bytes.constData(), bytes.size()));
    } else if (type == ExtraEntry::TouchKey || type == ExtraEntry::Rfid) {
        std::array<std::uint8_t, sizeof(quint64)> bytes;
        const std::optional<quint64> number = numberIn<quint64>(value);
        isSound_ = isSound_ && number;
        qToLittleEndian(number.value_or(0), bytes.data());
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

// The mask of a record; a packet has none.
bool XmlPage::asksForAllThatCame() const
{
    if (type_ != kTelemetryRecord)
        return true;
    FieldMask fields = mask();
    for (const ElementIndex head : kAlwaysWritten)
        fields.set(kElements[head].field);
    for (int i = 0; i < kElementCount; ++i) {
        if (seen_.test(i) && !fields.test(kElements[i].field))
            return false;
    }
    return true;
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
