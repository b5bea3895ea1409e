#include "check/record_check.h"

#include "check/record_form.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <utility>

namespace workbench {

namespace {

// The headers of the answers: one of three bytes is the low byte of the request's number and the length of
// the record, one of thirteen has its number and time behind these, one of two is the length alone.
struct HeaderRow
{
    Message answer;
    Message request;
    int size;
};

constexpr HeaderRow kHeaders[] = {
    {Message::CurrentRecord, Message::RequestCurrentRecord, kCurrentRecordHeader},
    {Message::ClearedRecord, Message::ClearServerData, kCurrentRecordHeader},
    {Message::RecordByNumber, Message::RequestRecordByNumber, kRecordByNumberHeader},
    {Message::RecordByTime, Message::RequestRecordByTime, kRecordByTimeHeader},
    {Message::RecordOfPeriod, Message::RequestRecordOfPeriod, kRecordByTimeHeader},
    {Message::ExtraPacket, Message::RequestExtraPacket, kExtraPacketHeader},
};

constexpr int kHeaderNumber = 3;
constexpr int kHeaderTime = 7;

const HeaderRow* headerOf(Message answer)
{
    const auto* row =
        std::ranges::find_if(kHeaders, [answer](const HeaderRow& r) { return r.answer == answer; });
    return row == std::end(kHeaders) ? nullptr : row;
}

constexpr int kPacketNumber = 5;
constexpr int kPacketTime = 11;

constexpr qint64 kYear2000 = 946684800;
constexpr qint64 kYear2100 = 4102444800;
constexpr qint64 kTwoYears = qint64{2} * 366 * 86400;

template <class Number>
Number numberAt(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

// The fields that a version knows; 0 for a version that there is not.
int fieldsOf(quint8 version)
{
    constexpr int first = 69;
    return version == 10 ? first : version == 20 ? kEarlierFieldCount : version == 30 ? kFieldCount : 0;
}

RecordContent lookAtRecord(const QByteArray& record)
{
    const int fields = fieldsOf(static_cast<quint8>(record.at(1)));
    if (fields == 0 || record.size() < kRecordHead)
        return {};
    FieldMask::Bytes bits;
    std::memcpy(bits.data(), record.constData() + 2, bits.size());
    const FieldMask mask(bits);
    if (record.size() != mask.recordSize(fields))
        return {};
    const auto valueOf = [&](int row) -> std::optional<quint32> {
        if (!mask.test(row))
            return {};
        return numberAt<quint32>(record, mask.recordSize(row));
    };
    return {true, valueOf(field("NumPage")), valueOf(field("Time"))};
}

RecordContent lookAtPacket(const QByteArray& packet)
{
    constexpr int leastSize = kPacketTime + static_cast<int>(sizeof(quint32));
    if (packet.size() < leastSize || packet.size() != kPacketCounted + numberAt<quint16>(packet, 1))
        return {};
    return {true, numberAt<quint32>(packet, kPacketNumber), numberAt<quint32>(packet, kPacketTime)};
}

RecordContent lookAt(const QByteArray& record)
{
    if (record.size() < 2)
        return {};
    switch (static_cast<quint8>(record.at(0))) {
    case kRecordType:
        return lookAtRecord(record);
    case kPacketType:
        return lookAtPacket(record);
    default:
        return {};
    }
}

bool agreesWithHeader(const RecordContent& content, const QByteArray& bytes)
{
    return (!content.number || *content.number == numberAt<quint32>(bytes, kHeaderNumber)) &&
           (!content.time || *content.time == numberAt<quint32>(bytes, kHeaderTime));
}

} // namespace

bool RecordCheck::carriesRecord(Message answer)
{
    return headerOf(answer) != nullptr;
}

int RecordCheck::versionOf(Message answer, const QByteArray& bytes)
{
    const HeaderRow* header = headerOf(answer);
    const bool isRecord = header && bytes.size() >= header->size + 2 &&
                          static_cast<quint8>(bytes.at(header->size)) == kRecordType;
    return isRecord ? static_cast<quint8>(bytes.at(header->size + 1)) : 0;
}

RecordContent RecordCheck::contentOf(Message answer, const QByteArray& bytes)
{
    const HeaderRow* header = headerOf(answer);
    if (!header || bytes.size() < header->size)
        return {};
    // Behind a short record the frame is filled up.
    const int length = numberAt<quint16>(bytes, header->size == kExtraPacketHeader ? 0 : 1);
    return lookAt(bytes.mid(header->size, length));
}

std::optional<AnswerProblem> RecordCheck::look(Message answer, const QByteArray& bytes)
{
    const HeaderRow* header = headerOf(answer);
    if (!header)
        return {};
    const qint64 came = bytes.size();
    if (came < header->size)
        return AnswerProblem{AnswerProblem::CutShort, came, 0};
    const bool namesRequest = header->size != kExtraPacketHeader;
    if (namesRequest && static_cast<quint8>(bytes.at(0)) != static_cast<quint8>(header->request))
        return AnswerProblem{AnswerProblem::Damaged, came, 0};
    const int length = numberAt<quint16>(bytes, namesRequest ? 1 : 0);
    if (came < header->size + length)
        return AnswerProblem{AnswerProblem::CutShort, came, header->size + length};
    const RecordContent content = contentOf(answer, bytes);
    if (!content.agrees || (header->size == kRecordByTimeHeader && !agreesWithHeader(content, bytes)))
        return AnswerProblem{AnswerProblem::Damaged, came, 0};
    if (!content.time)
        return {};
    const qint64 time = *content.time;
    if (time < kYear2000 || time >= kYear2100)
        return AnswerProblem{AnswerProblem::TimeOutside, came, 0, time};
    const auto isFarFrom = [time](std::optional<qint64> other) {
        return other && std::abs(time - *other) > kTwoYears;
    };
    const std::optional<qint64> doubted = std::exchange(doubted_, {});
    if (isFarFrom(lastTime_) && (!doubted || isFarFrom(doubted))) {
        doubted_ = time;
        return AnswerProblem{AnswerProblem::TimeJumps, came, 0, time, *lastTime_};
    }
    lastTime_ = time;
    return {};
}

void RecordCheck::forget()
{
    lastTime_.reset();
    doubted_.reset();
}

} // namespace workbench
