#include "telemetry/files/telemetry_binary_reader.h"

#include "telemetry/files/binary_layout.h"
#include "telemetry/files/checksums.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace vlk {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kHeadWithLength = binary::kLengthBytes + RecordHead::kBytes;
constexpr std::size_t kLeastToTell = binary::kLengthBytes + 2;

std::size_t lengthAt(Bytes start)
{
    return qFromLittleEndian<quint16>(start.data());
}

// Whether a record may begin here, as far as its first bytes tell.
bool looksLikeRecord(Bytes start)
{
    if (start.size() < kLeastToTell)
        return false;
    const std::uint8_t* record = start.data() + binary::kLengthBytes;
    return record[0] == kExtraPacket || (record[0] == kTelemetryRecord && record[1] == kProtocol3);
}

} // namespace

TelemetryBinaryReader::TelemetryBinaryReader(QIODevice& device) : input_(device)
{
    contents_.records.setUtcOffset(localOffset());
}

bool TelemetryBinaryReader::step()
{
    if (input_.peek(1).empty())
        return false;
    if (!hasHeader_) {
        hasHeader_ = true;
        readHeader();
    } else if (damageAt_) {
        passDamage();
    } else if (const std::size_t size = recordHere()) {
        takeRecord(size);
    } else {
        damageAt_ = input_.position();
        isCut_ = recordIsCutHere();
        input_.skip(1);
        passDamage();
    }
    return true;
}

void TelemetryBinaryReader::readHeader()
{
    const Bytes header = input_.peek(binary::kHeaderBytes);
    if (!looksBinary(header))
        report(FileDamage::NotThisForm, 0, std::ssize(header));
    if (header.size() == binary::kHeaderBytes) {
        const auto* model = reinterpret_cast<const char*>(header.data() + binary::kModelAt);
        contents_.origin.model = QString::fromLocal8Bit(model, qstrnlen(model, binary::kModelBytes));
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
    input_.startSum();
}

// The size of the record that stands here whole, with its length; 0 if none does.
std::size_t TelemetryBinaryReader::recordHere()
{
    if (const std::size_t sound = soundRecordHere())
        return leadsOn(sound) ? sound : 0;
    return oddRecordHere();
}

// One whose length agrees with what it holds.
std::size_t TelemetryBinaryReader::soundRecordHere()
{
    const Bytes start = input_.peek(kHeadWithLength);
    if (!looksLikeRecord(start) || !lengthAgrees(start))
        return 0;
    // Asking for more may move what `start` looks at.
    const std::size_t size = binary::kLengthBytes + lengthAt(start);
    return input_.peek(size).size() == size ? size : 0;
}

// Whether the length is the one that the mask, or the size of an extra packet, asks for.
bool TelemetryBinaryReader::lengthAgrees(Bytes start)
{
    const Bytes record = behind(start, binary::kLengthBytes);
    if (record[0] == kExtraPacket)
        return record.size() >= 3 && lengthAt(start) == std::size_t{ExtraPacket::kUncountedBytes} +
                                                            qFromLittleEndian<quint16>(&record[1]);
    if (start.size() < kHeadWithLength)
        return false;
    if (!std::equal(head_.begin(), head_.end(), record.begin())) {
        std::copy_n(record.begin(), head_.size(), head_.begin());
        lengthOfHead_ = static_cast<std::size_t>(readHead(record).mask.recordSize());
    }
    return lengthAt(start) == lengthOfHead_;
}

// Whether the record here ends that many bytes ahead, since another one begins there or the file ends. One
// that lost bytes takes the first ones of the next in, and ends within it.
bool TelemetryBinaryReader::leadsOn(std::size_t ahead)
{
    if (headAhead(ahead))
        return true;
    const Bytes further = behind(input_.peek(ahead + kLeastToTell), ahead);
    // One whose own length does not agree has to lead on in its turn.
    return looksLikeRecord(further) && headAhead(ahead + binary::kLengthBytes + lengthAt(further));
}

// Whether a head stands there, or the file ends, also within the head. Some bytes of it may be damaged where
// it is one like the head here.
bool TelemetryBinaryReader::headAhead(std::size_t ahead)
{
    constexpr int kMostDamaged = 2;
    const Bytes bytes = input_.peek(ahead + kHeadWithLength);
    if (bytes.size() < ahead)
        return false;
    const Bytes there = bytes.subspan(ahead);
    const Bytes begin = there.first(std::min(there.size(), kLeastToTell));
    if (std::equal(begin.begin(), begin.end(), bytes.begin()))
        return true;
    if (looksLikeRecord(there) && lengthAgrees(there))
        return true;
    if (there.size() < kHeadWithLength)
        return looksLikeRecord(there) && there[binary::kLengthBytes] == kTelemetryRecord;
    const int damaged = std::inner_product(there.begin(), there.end(), bytes.begin(), 0, std::plus<>(),
                                           std::not_equal_to<>());
    return ahead >= kHeadWithLength && damaged <= kMostDamaged;
}

// One whose length does not agree, as trackers send them too; it counts if another record or the end of the
// file follows it. Behind a damage a packet has too few marks of its own for that.
std::size_t TelemetryBinaryReader::oddRecordHere()
{
    const Bytes start = input_.peek(kHeadWithLength);
    if (!looksLikeRecord(start))
        return 0;
    const bool isPacket = start[binary::kLengthBytes] == kExtraPacket;
    const std::size_t length = lengthAt(start);
    if ((isPacket && damageAt_) || length < (isPacket ? 1 : RecordHead::kBytes))
        return 0;
    const std::size_t size = binary::kLengthBytes + length;
    return leadsOn(size) ? size : 0;
}

void TelemetryBinaryReader::takeRecord(std::size_t size)
{
    const Bytes record = input_.peek(size);
    std::array<std::uint8_t, kHeadWithLength> head{};
    std::copy_n(record.begin(), std::min(size, head.size()), head.begin());
    contents_.records.add(behind(record, binary::kLengthBytes));
    ++total_;
    input_.skip(size);
    if (head[binary::kLengthBytes] == kTelemetryRecord && size >= head.size() && lengthAgrees(head))
        takeAlike(head, size);
}

// The next ones with the same head, as most have, as far as they are read already and another one that begins
// alike follows each: then they are sound without a closer look.
void TelemetryBinaryReader::takeAlike(Bytes head, std::size_t size)
{
    constexpr int kMost = 64;
    const Bytes begin = head.first(kLeastToTell);
    Bytes further = input_.buffered();
    int records = 0;
    while (records < kMost && further.size() >= size + kLeastToTell &&
           std::equal(head.begin(), head.end(), further.begin()) &&
           std::equal(begin.begin(), begin.end(), further.begin() + static_cast<std::ptrdiff_t>(size))) {
        contents_.records.add(further.subspan(binary::kLengthBytes, size - binary::kLengthBytes));
        further = further.subspan(size);
        ++records;
    }
    total_ += records;
    input_.skip(records * size);
}

// To the next record, or to the end; a long way in several steps.
void TelemetryBinaryReader::passDamage()
{
    constexpr int kBytesAStep = 65'536;
    for (int i = 0; i < kBytesAStep; ++i) {
        const bool toTheEnd = input_.peek(1).empty();
        if (toTheEnd || recordHere() != 0) {
            const qint64 begin = *std::exchange(damageAt_, {});
            report(toTheEnd && isCut_ ? FileDamage::CutShort : FileDamage::Records, begin,
                   input_.position() - begin);
            return;
        }
        input_.skip(1);
    }
}

bool TelemetryBinaryReader::recordIsCutHere()
{
    const Bytes start = input_.peek(kHeadWithLength);
    if (!looksLikeRecord(start))
        return false;
    const std::size_t size = binary::kLengthBytes + lengthAt(start);
    return input_.peek(size).size() < size;
}

void TelemetryBinaryReader::finish()
{
    if (damageAt_)
        passDamage();
    if (!headerHolds_)
        return;
    const qint64 behindHeader = binary::kHeaderBytes;
    if (input_.sum() != recordsCrc_)
        report(FileDamage::RecordsChecksum, behindHeader, input_.position() - behindHeader);
    contents_.announced = count_;
    if (static_cast<quint16>(total_) != count_)
        report(FileDamage::RecordCount, binary::kCountAt, sizeof(count_));
}

void TelemetryBinaryReader::report(FileDamage::Kind kind, qint64 offset, qint64 bytes)
{
    contents_.damages.push_back({kind, offset, bytes, total_});
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
        "the file ends within a record", "wrong checksum of the records", "another count than there are",
        "several elements on a line"};
    return QStringLiteral("%1 at byte %2, %3 bytes")
        .arg(QLatin1String(kKinds[damage.kind]))
        .arg(damage.offset)
        .arg(damage.bytes);
}

} // namespace vlk
