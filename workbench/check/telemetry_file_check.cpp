#include "check/telemetry_file_check.h"

#include "check/plugin_names.h"
#include "check/record_form.h"
#include "telemetry/files/binary_layout.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <span>

namespace workbench {

namespace {

using Kind = TelemetryFileProblem::Kind;

// What was seen of the first record. TooFar: nothing so far, and more than a look may read.
enum class Seen { Nothing, Beginning, Pieces, Whole, TooFar };

constexpr qint64 kFarthestLook = 16 << 20;

// Line by line, as the form is defined: its titles make it no XML in the strict sense.
Seen lookAtXml(QFile& file)
{
    constexpr qint64 longestLine = 4096;
    Seen seen = Seen::Nothing;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine(longestLine);
        // Pages of other types are passed over.
        const int begins = std::max(line.indexOf("<Page type=\"176\""), line.indexOf("<Page type=\"177\""));
        const int ends = line.lastIndexOf("</Page>");
        if (ends >= 0 && (seen != Seen::Nothing || (begins >= 0 && begins < ends)))
            return Seen::Whole;
        if (begins >= 0)
            seen = seen == Seen::Nothing ? Seen::Beginning : Seen::Pieces;
        if (file.pos() > kFarthestLook)
            return Seen::TooFar;
    }
    return seen;
}

using Bytes = std::span<const uchar>;

constexpr uchar kVersion = 30;

// The record that begins here with its length in front; empty when it is none or not all there.
Bytes recordAt(Bytes start)
{
    if (start.size() <= binary::kLengthBytes)
        return {};
    const std::size_t length = qFromLittleEndian<quint16>(start.data());
    const Bytes rest = start.subspan(binary::kLengthBytes);
    const std::size_t least = rest[0] == kRecordType   ? kRecordHead
                              : rest[0] == kPacketType ? kPacketCounted
                                                       : rest.size() + 1;
    return length >= least && length <= rest.size() ? rest.first(length) : Bytes();
}

// Whether its length is the one that its mask or its head asks for, so that it is no record by chance.
bool lengthAgrees(Bytes record)
{
    if (record[0] == kPacketType)
        return record.size() == std::size_t{kPacketCounted} + qFromLittleEndian<quint16>(&record[1]);
    FieldMask::Bytes mask;
    std::memcpy(mask.data(), &record[2], mask.size());
    return record[1] == kVersion && record.size() == static_cast<std::size_t>(FieldMask(mask).recordSize());
}

Seen lookAtBinary(Bytes file)
{
    if (file.size() <= binary::kHeaderBytes)
        return Seen::Nothing;
    const Bytes records = file.subspan(binary::kHeaderBytes);
    // At its own place any record counts, behind damage only one that is sound.
    if (!recordAt(records).empty())
        return Seen::Whole;
    for (std::size_t at = 1; at < records.size(); ++at) {
        const Bytes record = recordAt(records.subspan(at));
        if (!record.empty() && lengthAgrees(record))
            return Seen::Whole;
        if (at > std::size_t{kFarthestLook})
            return Seen::TooFar;
    }
    const bool isRecord =
        records.size() > binary::kLengthBytes &&
        (records[binary::kLengthBytes] == kRecordType || records[binary::kLengthBytes] == kPacketType);
    return isRecord || records.size() <= binary::kLengthBytes ? Seen::Beginning : Seen::Pieces;
}

} // namespace

std::optional<TelemetryFileProblem> checkTelemetryFile(const QString& path)
{
    QFile file(path);
    const auto problem = [&file](Kind kind) {
        return TelemetryFileProblem{kind, file.size(),
                                    kind == Kind::Unreadable ? file.errorString() : QString()};
    };
    if (!file.open(QIODevice::ReadOnly))
        return problem(Kind::Unreadable);
    if (file.size() == 0)
        return problem(Kind::Empty);
    Seen seen = Seen::Nothing;
    if (file.peek(1) == "<") {
        seen = lookAtXml(file);
    } else {
        const uchar* bytes = file.map(0, file.size());
        if (!bytes)
            return problem(Kind::Unreadable);
        seen = lookAtBinary({bytes, static_cast<std::size_t>(file.size())});
    }
    switch (seen) {
    case Seen::Whole:
    case Seen::TooFar: // who reads it all finds out
        return {};
    case Seen::Beginning:
        return problem(Kind::CutShort);
    case Seen::Pieces:
        return problem(Kind::Damaged);
    case Seen::Nothing:
        break;
    }
    return problem(Kind::NoRecord);
}

} // namespace workbench
