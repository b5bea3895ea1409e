#pragma once

// One decoded telemetry record of protocol 3.0, or an extra packet. The object owns copies of all it was
// made from. Decoding reports no error: what the bytes do not give reads as 0, and nothing is read beyond
// them, whatever their mask, size or type says.
//
//     page.value<element("Speed")>()      with the type of the catalogue
//     page.raw(index), page.number(index) for an index from a table
//     page.has(index)                     is it in this record
//
// An extra packet has no mask and no such values; it is read through extra().

#include "base/clock.h"
#include "telemetry/record/extra_packet.h"
#include "telemetry/record/record_values.h"

#include <QByteArray>
#include <QObject>

#include <optional>

namespace vlk {
struct RecordHead;
struct RecordLayout;
} // namespace vlk

class TmiPage_Zeta3 : public QObject, public vlk::RecordValues<vlk::kFieldCount>
{
    Q_OBJECT

public:
    using RecordValues::number;

    // No values; tells which fields a mask selects.
    explicit TmiPage_Zeta3(const vlk::FieldMask& mask = {}, std::optional<qint32> utcOffset = {});
    // From the bytes of a record, from its type byte on.
    TmiPage_Zeta3(const void* record, qsizetype size, std::optional<qint32> utcOffset = {});
    // From the parts that a telemetry file gives.
    TmiPage_Zeta3(quint8 type, quint8 ver, const vlk::FieldMask& mask, const ValueBlock& block,
                  std::optional<qint32> utcOffset = {});
    explicit TmiPage_Zeta3(const vlk::ExtraPacket& extra, std::optional<qint32> utcOffset = {});

    // Decodes again, and keeps utcOffset(). The memory of the payload is used again.
    void setRecord(const void* record, qsizetype size);
    // Takes the bytes that a store keeps (record_store.h).
    void setStored(const vlk::RecordLayout& layout, std::span<const std::uint8_t> bytes);
    // Takes the answer to the question for the last key (message 2312), from its type byte on.
    void setKeyAnswer(const void* answer, qsizetype size);

    // For an extra packet these three come from its head.
    quint8 type() const;
    quint8 ver() const;
    quint32 number() const; // the record's number

    QString formatText() const; // the mask as 255 characters

    // What stands behind the head of a record; of an extra packet all behind its type byte.
    QByteArray payload() const { return payload_; }

    bool isExtra() const { return isExtra_; }
    const vlk::ExtraPacket& extra() const { return extra_; }

    // The zone in which times are shown, in seconds east of UTC: the local one, looked up each time, until
    // another was given.
    qint32 utcOffset() const { return hasUtcOffset() ? *utcOffset_ : vlk::localOffset(); }
    bool hasUtcOffset() const { return utcOffset_.has_value(); }
    void setUtcOffset(std::optional<qint32> seconds) { utcOffset_ = seconds; }

private:
    void setExtra(const vlk::ExtraPacket& extra, std::span<const std::uint8_t> packet);
    void setFields(const vlk::RecordHead& head, std::span<const std::uint8_t> payload);
    void setPayload(std::span<const std::uint8_t> bytes);

    quint8 type_ = 0;
    quint8 ver_ = 0;
    bool isExtra_ = false;
    std::optional<qint32> utcOffset_;
    QByteArray payload_;
    vlk::ExtraPacket extra_;
};
