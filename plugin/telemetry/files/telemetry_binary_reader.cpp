#include "telemetry/files/telemetry_binary_reader.h"

#include "telemetry/files/binary_layout.h"
#include "telemetry/files/checksums.h"
#include "telemetry/files/input_buffer.h"
#include "telemetry/record/record_head.h"

namespace vlk {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kHeadWithLength = binary::kLengthBytes + RecordHead::kBytes;

std::size_t lengthAt(Bytes start)
{
    return qFromLittleEndian<quint16>(start.data());
}

// Whether a record may begin here, as far as its first bytes tell.
bool looksLikeRecord(Bytes start)
{
    if (start.size() < binary::kLengthBytes + 2)
        return false;
    const std::uint8_t* record = start.data() + binary::kLengthBytes;
    return record[0] == kExtraPacket || (record[0] == kTelemetryRecord && record[1] == kProtocol3);
}

// Whether the length is the one that the mask, or the size of an extra packet, asks for.
bool lengthAgrees(Bytes start)
{
    const Bytes record = behind(start, binary::kLengthBytes);
    if (record[0] == kExtraPacket)
        return record.size() >= 3 && lengthAt(start) == std::size_t{ExtraPacket::kUncountedBytes} +
                                                            qFromLittleEndian<quint16>(&record[1]);
    return start.size() >= kHeadWithLength &&
           lengthAt(start) == static_cast<std::size_t>(readHead(record).mask.recordSize());
}

class BinaryReader
{
public:
    explicit BinaryReader(QIODevice& device) : input_(device)
    {
        contents_.records.setUtcOffset(localOffset());
    }

    TelemetryContents read()
    {
        if (input_.peek(1).empty())
            return {};
        readHeader();
        while (!input_.peek(1).empty()) {
            if (const std::size_t size = recordHere())
                takeRecord(size);
            else
                passDamage();
        }
        compareWithHeader();
        return std::move(contents_);
    }

private:
    void readHeader()
    {
        const Bytes header = input_.peek(binary::kHeaderBytes);
        if (!looksBinary(header))
            report(FileDamage::NotThisForm, 0, std::ssize(header));
        if (header.size() == binary::kHeaderBytes) {
            count_ = qFromLittleEndian<quint16>(header.data() + binary::kCountAt);
            recordsCrc_ = qFromLittleEndian<quint32>(header.data() + binary::kRecordsCrcAt);
            headerHolds_ = qFromLittleEndian<quint16>(header.data() + binary::kHeaderCrcAt) ==
                           crc8(header.first(binary::kHeaderCrcAt));
            if (!headerHolds_)
                report(FileDamage::HeaderChecksum, 0, binary::kHeaderCrcAt);
        } else {
            report(FileDamage::CutShort, 0, std::ssize(header));
        }
        input_.skip(header.size());
    }

    // The size of the record that stands here whole, with its length; 0 if none does.
    std::size_t recordHere()
    {
        const std::size_t sound = soundRecordHere();
        return sound != 0 ? sound : oddRecordHere();
    }

    // One whose length agrees with what it holds.
    std::size_t soundRecordHere()
    {
        const Bytes start = input_.peek(kHeadWithLength);
        if (!looksLikeRecord(start) || !lengthAgrees(start))
            return 0;
        // Asking for more may move what `start` looks at.
        const std::size_t size = binary::kLengthBytes + lengthAt(start);
        return input_.peek(size).size() == size ? size : 0;
    }

    // One whose length does not agree, as trackers send them too; it counts if another record or the end of
    // the file follows it.
    std::size_t oddRecordHere()
    {
        const Bytes start = input_.peek(kHeadWithLength);
        if (start.size() <= binary::kLengthBytes)
            return 0;
        const std::uint8_t type = start[binary::kLengthBytes];
        const std::size_t least = type == kExtraPacket ? sizeof(type) : RecordHead::kBytes;
        const std::size_t length = lengthAt(start);
        if ((type != kExtraPacket && type != kTelemetryRecord) || length < least)
            return 0;
        const std::size_t size = binary::kLengthBytes + length;
        const Bytes further = input_.peek(size + kHeadWithLength);
        const bool leadsOn =
            further.size() == size || (further.size() > size && looksLikeRecord(further.subspan(size)));
        return leadsOn ? size : 0;
    }

    void takeRecord(std::size_t size)
    {
        const Bytes record = behind(input_.peek(size), binary::kLengthBytes);
        contents_.records.add(record);
        pass(size);
    }

    // To the next record whose length agrees, or to the end.
    void passDamage()
    {
        const qint64 begin = input_.position();
        const bool cut = recordIsCutHere();
        do {
            pass(1);
        } while (!input_.peek(1).empty() && soundRecordHere() == 0);
        const bool toTheEnd = input_.peek(1).empty();
        report(toTheEnd && cut ? FileDamage::CutShort : FileDamage::Records, begin,
               input_.position() - begin);
    }

    bool recordIsCutHere()
    {
        const Bytes start = input_.peek(kHeadWithLength);
        if (!looksLikeRecord(start))
            return false;
        const std::size_t size = binary::kLengthBytes + lengthAt(start);
        return input_.peek(size).size() < size;
    }

    void compareWithHeader()
    {
        if (!headerHolds_)
            return;
        const qint64 behindHeader = binary::kHeaderBytes;
        if (crc_ != recordsCrc_)
            report(FileDamage::RecordsChecksum, behindHeader, input_.position() - behindHeader);
        contents_.announced = count_;
        if (static_cast<quint16>(contents_.records.size()) != count_)
            report(FileDamage::RecordCount, binary::kCountAt, sizeof(count_));
    }

    void pass(std::size_t size)
    {
        crc_ = crc32(crc_, input_.peek(size));
        input_.skip(size);
    }

    void report(FileDamage::Kind kind, qint64 offset, qint64 bytes)
    {
        contents_.damages.push_back({kind, offset, bytes, contents_.records.size()});
    }

    InputBuffer input_;
    TelemetryContents contents_;
    quint16 count_ = 0;
    quint32 recordsCrc_ = 0;
    quint32 crc_ = 0;
    bool headerHolds_ = false;
};

} // namespace

TelemetryContents readTelemetryBinary(QIODevice& device)
{
    return BinaryReader(device).read();
}

bool looksBinary(std::span<const std::uint8_t> start)
{
    return start.size() > binary::kVersionAt &&
           qFromLittleEndian<quint32>(start.data() + binary::kMagicAt) == binary::kMagic &&
           start[binary::kVersionAt] == binary::kVersion;
}

QString text(const FileDamage& damage)
{
    static constexpr const char* kKinds[] = {
        "not a binary telemetry file",   "wrong checksum of the header",  "no record",
        "the file ends within a record", "wrong checksum of the records", "another count than there are"};
    return QStringLiteral("%1 at byte %2, %3 bytes")
        .arg(QLatin1String(kKinds[damage.kind]))
        .arg(damage.offset)
        .arg(damage.bytes);
}

} // namespace vlk
