#pragma once

// Reads telemetry in the binary form. A damaged file loses at most its damaged records: where the lengths do
// not lead on, the reader looks for the next place at which a whole record stands. A length is believed only
// if another record, or the end of the file, follows: what a loss of bytes made of two records is none. Only
// where it took as many bytes as records have do all lengths fit; then checksum and count tell it. What it
// found wrong it tells. An empty device is no damage.

#include "telemetry/files/input_buffer.h"
#include "telemetry/files/telemetry_contents.h"
#include "telemetry/record/record_head.h"

namespace vlk {

class TelemetryBinaryReader
{
public:
    // From the present position of the device, which counts as 0.
    explicit TelemetryBinaryReader(QIODevice& device);

    // Some records or a damage; false at the end.
    bool step();
    qint64 position() const { return input_.position(); }
    // Between steps what was read so far may be taken out of the records.
    TelemetryContents& contents() { return contents_; }
    // After the last step.
    void finish();

private:
    void readHeader();
    std::size_t recordHere();
    std::size_t soundRecordHere();
    bool lengthAgrees(std::span<const std::uint8_t> start);
    bool leadsOn(std::size_t ahead);
    bool headAhead(std::size_t ahead);
    std::size_t oddRecordHere();
    void takeRecord(std::size_t size);
    void takeAlike(std::span<const std::uint8_t> head, std::size_t size);
    void passDamage();
    bool recordIsCutHere();
    void report(FileDamage::Kind kind, qint64 offset, qint64 bytes);

    InputBuffer input_;
    TelemetryContents contents_;
    int total_ = 0;                  // records that were read
    std::optional<qint64> damageAt_; // where bytes begin that are no record
    bool isCut_ = false;             // they began as one
    bool hasHeader_ = false;
    bool headerHolds_ = false;
    quint16 count_ = 0;
    quint32 recordsCrc_ = 0;
    // The head that was looked at last, and the length that its mask asks for: mostly the next one's too.
    std::array<std::uint8_t, RecordHead::kBytes> head_{};
    std::size_t lengthOfHead_ = RecordHead::kBytes;
};

// Whether a file that begins with these bytes, 5 at least, says that it has this form.
bool looksBinary(std::span<const std::uint8_t> start);

// For the log.
QString text(const FileDamage& damage);

} // namespace vlk
