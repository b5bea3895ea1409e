#include "telemetry/record/tmi_page_zeta3.h"

#include "telemetry/record/record_head.h"
#include "telemetry/record/record_store.h"

#include <cstring>

using namespace vlk;

TmiPage_Zeta3::TmiPage_Zeta3(const FieldMask& mask, std::optional<qint32> utcOffset)
    : TmiPage_Zeta3(0, 0, mask, {}, utcOffset)
{
}

TmiPage_Zeta3::TmiPage_Zeta3(const void* record, qsizetype size, std::optional<qint32> utcOffset)
    : TmiPage_Zeta3(FieldMask(), utcOffset)
{
    setRecord(record, size);
}

TmiPage_Zeta3::TmiPage_Zeta3(quint8 type, quint8 ver, const FieldMask& mask, const ValueBlock& block,
                             std::optional<qint32> utcOffset)
    : RecordValues(mask, block), type_(type), ver_(ver), utcOffset_(utcOffset)
{
}

TmiPage_Zeta3::TmiPage_Zeta3(const ExtraPacket& extra, std::optional<qint32> utcOffset)
    : TmiPage_Zeta3(FieldMask(), utcOffset)
{
    setExtra(extra, {});
}

void TmiPage_Zeta3::setRecord(const void* record, qsizetype size)
{
    const auto bytes = bytesAt(record, size);
    const RecordHead head = readHead(bytes);
    if (head.type == kExtraPacket) {
        setExtra(ExtraPacket::fromRecord(bytes), bytes);
        return;
    }
    setFields(head, behind(bytes, RecordHead::kBytes));
}

void TmiPage_Zeta3::setFields(const RecordHead& head, std::span<const std::uint8_t> payload)
{
    type_ = head.type;
    ver_ = head.ver;
    isExtra_ = false;
    setPayload(payload);
    unpack(head.mask, head.type == kTelemetryRecord ? payload : payload.first(0));
}

// Values that the mask does not tell of are there, but the payload of such a record is not what was stored.
void TmiPage_Zeta3::setStored(const RecordLayout& layout, std::span<const std::uint8_t> bytes)
{
    if (layout.form == RecordLayout::Packet)
        return setExtra(ExtraPacket::fromRecord(bytes), bytes);
    if (layout.form == RecordLayout::PacketParts) {
        constexpr std::size_t head = ExtraPacket::kHeadBytes;
        return setExtra(
            ExtraPacket::fromParts(bytes.first(std::min(bytes.size(), head)), behind(bytes, head)), {});
    }
    setFields({layout.type, layout.ver, layout.held}, bytes);
    if (layout.held != layout.mask) {
        setPayload({});
        setMask(layout.mask);
    }
}

void TmiPage_Zeta3::setKeyAnswer(const void* answer, qsizetype size)
{
    const auto bytes = bytesAt(answer, size);
    setExtra(ExtraPacket::fromKeyAnswer(bytes), bytes);
}

quint8 TmiPage_Zeta3::type() const
{
    return isExtra_ ? extra_.type() : type_;
}

quint8 TmiPage_Zeta3::ver() const
{
    return isExtra_ ? extra_.stVer() : ver_;
}

quint32 TmiPage_Zeta3::number() const
{
    constexpr ElementIndex numPage = element("NumPage");
    return isExtra_ ? extra_.value<numPage>() : value<numPage>();
}

QString TmiPage_Zeta3::formatText() const
{
    return QString::fromStdString(mask().text());
}

// An extra packet has neither mask nor values; the bytes of its head must not be taken for a mask.
void TmiPage_Zeta3::setExtra(const ExtraPacket& extra, std::span<const std::uint8_t> packet)
{
    setPayload(behind(packet, sizeof(type_)));
    unpack({}, {});
    extra_ = extra;
    isExtra_ = true;
}

// QByteArray gives memory back when it shrinks, unless it was reserved.
void TmiPage_Zeta3::setPayload(std::span<const std::uint8_t> bytes)
{
    const int size = static_cast<int>(bytes.size());
    if (payload_.capacity() < size)
        payload_.reserve(size);
    if (payload_.size() != size)
        payload_.resize(size);
    if (size > 0)
        std::memcpy(payload_.data(), bytes.data(), bytes.size());
}
