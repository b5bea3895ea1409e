#include "telemetry/files/telemetry_binary_writer.h"

#include "telemetry/files/binary_layout.h"
#include "telemetry/files/checksums.h"
#include "telemetry/files/identity_text.h"
#include "telemetry/files/output_buffer.h"
#include "telemetry/record/record_head.h"

#include <cstring>

namespace vlk {

namespace {

using Buffer = std::vector<std::uint8_t>;

void append(Buffer& to, std::span<const std::uint8_t> bytes)
{
    to.insert(to.end(), bytes.begin(), bytes.end());
}

void appendPacked(Buffer& record, const TmiPage_Zeta3& page)
{
    for (int i = 0; i < kFieldCount; ++i) {
        if (page.hasField(i))
            append(record, std::span(page.valueBlock()).subspan(kFields[i].offset, kFields[i].width));
    }
}

// The record with its length in front; `record` lends its memory.
void build(Buffer& record, const TmiPage_Zeta3& page)
{
    const QByteArray payload = page.payload();
    record.assign(binary::kLengthBytes, 0);
    record.push_back(page.type());
    if (!page.isExtra()) {
        record.push_back(page.ver());
        append(record, page.mask().bytes());
    }
    if (!payload.isEmpty()) {
        append(record, bytesAt(payload.constData(), payload.size()));
    } else if (page.isExtra()) {
        append(record, page.extra().head().subspan(sizeof(quint8)));
        append(record, page.extra().area());
    } else {
        appendPacked(record, page);
    }
    record.resize(std::min(record.size(), binary::kLengthBytes + binary::kLongestRecord));
    qToLittleEndian(static_cast<quint16>(record.size() - binary::kLengthBytes), record.data());
}

// Builds each record anew, so that memory does not grow with them.
template <class Visit>
void forEachRecord(const RecordStore& records, Visit visit)
{
    Buffer record;
    records.forEach([&](const TmiPage_Zeta3& page) {
        build(record, page);
        visit(std::span<const std::uint8_t>(record));
    });
}

std::array<std::uint8_t, binary::kHeaderBytes> header(const RecordStore& records,
                                                      const TelemetryOrigin& origin, quint32 recordsCrc)
{
    std::array<std::uint8_t, binary::kHeaderBytes> bytes{};
    const auto put = [&](int at, auto number) { qToLittleEndian(number, bytes.data() + at); };
    const auto putText = [&](int at, const QByteArray& text) {
        std::memcpy(bytes.data() + at, text.constData(), text.size());
    };
    const quint32 firstTime = timeOf(*records.at(0));
    // Two digits a byte.
    const QByteArray identity =
        scrambled(origin.trackerId.toLocal8Bit().left(binary::kIdentityBytes / 2), identityKey(firstTime));
    put(binary::kMagicAt, binary::kMagic);
    put(binary::kVersionAt, binary::kVersion);
    putText(binary::kModelAt, origin.model.toLocal8Bit().left(binary::kModelBytes));
    put(binary::kFirstTimeAt, firstTime);
    put(binary::kLastTimeAt, timeOf(*records.at(records.size() - 1)));
    put(binary::kCountAt, static_cast<quint16>(records.size()));
    put(binary::kRecordsCrcAt, recordsCrc);
    put(binary::kIdentityLengthAt, static_cast<quint8>(identity.size()));
    putText(binary::kIdentityAt, identity);
    put(binary::kHeaderCrcAt, quint16{crc8(std::span(bytes).first(binary::kHeaderCrcAt))});
    return bytes;
}

} // namespace

bool writeTelemetryBinary(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin)
{
    if (records.empty())
        return true;
    quint32 recordsCrc = 0;
    forEachRecord(records, [&](auto record) { recordsCrc = crc32(recordsCrc, record); });

    OutputBuffer out(device);
    out << std::span<const std::uint8_t>(header(records, origin, recordsCrc));
    forEachRecord(records, [&](auto record) { out << record; });
    return out.finish();
}

} // namespace vlk
