#include "telemetry/files/telemetry_binary_writer.h"

#include "telemetry/files/binary_layout.h"
#include "telemetry/files/checksums.h"
#include "telemetry/files/identity_text.h"
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

void putLength(Buffer& record)
{
    record.resize(std::min(record.size(), binary::kLengthBytes + binary::kLongestRecord));
    qToLittleEndian(static_cast<quint16>(record.size() - binary::kLengthBytes), record.data());
}

// Builds a record as the tracker sent it.
void buildPacked(Buffer& record, const RecordLayout& layout, std::span<const std::uint8_t> payload)
{
    record.assign(binary::kLengthBytes, 0);
    record.push_back(layout.type);
    record.push_back(layout.ver);
    append(record, layout.mask.bytes());
    append(record, payload);
    putLength(record);
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
    putLength(record);
}

// Builds each record anew, so that memory does not grow with them.
template <class Visit>
void forEachBuilt(const RecordStore& store, std::span<const int> records, Visit visit)
{
    Buffer built;
    TmiPage_Zeta3 page;
    for (const int record : records) {
        const RecordLayout& layout = store.layout(record);
        const std::span<const std::uint8_t> bytes = store.bytes(record);
        if (layout.form == RecordLayout::Record && layout.held == layout.mask && !bytes.empty()) {
            buildPacked(built, layout, bytes);
        } else {
            store.decode(page, record);
            build(built, page);
        }
        visit(std::span<const std::uint8_t>(built));
    }
}

std::array<std::uint8_t, binary::kHeaderBytes> header(const ExportAhead& ahead, const TelemetryOrigin& origin)
{
    std::array<std::uint8_t, binary::kHeaderBytes> bytes{};
    const auto put = [&](int at, auto number) { qToLittleEndian(number, bytes.data() + at); };
    const auto putText = [&](int at, const QByteArray& text) {
        std::memcpy(bytes.data() + at, text.constData(), text.size());
    };
    // Two digits a byte.
    const QByteArray identity = scrambled(origin.trackerId.toLocal8Bit().left(binary::kIdentityBytes / 2),
                                          identityKey(ahead.firstTime));
    put(binary::kMagicAt, binary::kMagic);
    put(binary::kVersionAt, binary::kVersion);
    putText(binary::kModelAt, origin.model.toLocal8Bit().left(binary::kModelBytes));
    put(binary::kFirstTimeAt, ahead.firstTime);
    put(binary::kLastTimeAt, ahead.lastTime);
    put(binary::kCountAt, static_cast<quint16>(ahead.count));
    put(binary::kRecordsCrcAt, ahead.crc);
    put(binary::kIdentityLengthAt, static_cast<quint8>(identity.size()));
    putText(binary::kIdentityAt, identity);
    put(binary::kHeaderCrcAt, quint16{crc8(std::span(bytes).first(binary::kHeaderCrcAt))});
    return bytes;
}

class BinaryWriter : public ExportWriter
{
public:
    BinaryWriter(const ExportAhead& ahead, TelemetryOrigin origin) : ahead_(ahead), origin_(std::move(origin))
    {
    }

    void begin(OutputBuffer& out) override
    {
        if (ahead_.count > 0)
            out << std::span<const std::uint8_t>(header(ahead_, origin_));
    }

    void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) override
    {
        forEachBuilt(store, records, [&](auto record) { out << record; });
    }

    void finish(OutputBuffer& /*out*/) override {}

private:
    ExportAhead ahead_;
    TelemetryOrigin origin_;
};

} // namespace

std::unique_ptr<ExportWriter> binaryWriter(const ExportAhead& ahead, const TelemetryOrigin& origin)
{
    return std::make_unique<BinaryWriter>(ahead, origin);
}

std::uint32_t binaryCrc(std::uint32_t before, const RecordStore& store, std::span<const int> records)
{
    forEachBuilt(store, records, [&](auto record) { before = crc32(before, record); });
    return before;
}

bool writeTelemetryBinary(QIODevice& device, const RecordStore& records, const TelemetryOrigin& origin)
{
    ExportOptions options;
    options.origin = origin;
    return exportRecords(device, records, ExportForm::Tmi, options);
}

} // namespace vlk
