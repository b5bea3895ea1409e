#include "tracker/record_requests.h"

#include "tracker/bytes.h"

#include <algorithm>
#include <cmath>

namespace tracker {

namespace {

using vlk::Message;

QByteArray shortHeader(Message request, const QByteArray& record)
{
    QByteArray header;
    append(header, static_cast<quint8>(request));
    append(header, static_cast<quint16>(record.size()));
    return header;
}

Answers byNumber(Message request, const RecordArchive::Found& found)
{
    return {Answer::bytes(shortHeader(request, found.bytes) + found.bytes)};
}

Answers byTime(Message request, const RecordArchive::Found& found)
{
    QByteArray header = shortHeader(request, found.bytes);
    append(header, found.number);
    append(header, found.time);
    append(header, quint16{0});
    return {Answer::bytes(header + found.bytes)};
}

} // namespace

RecordRequests::RecordRequests(RecordArchive& archive, TrackerMemory& memory,
                               std::function<Present()> present)
    : archive_(archive), memory_(memory), present_(std::move(present))
{
}

void RecordRequests::addTo(Handlers& handlers)
{
    handlers[Message::RequestCurrentRecord] = [this](void*) {
        return current(Message::RequestCurrentRecord);
    };
    handlers[Message::RequestRecordByNumber] = [this](void* p1) -> Answers {
        if (!p1)
            return {};
        const Present present = present_();
        return byNumber(Message::RequestRecordByNumber,
                        archive_.byNumber(*static_cast<const quint32*>(p1), present.now, present.dataSet));
    };
    handlers[Message::RequestRecordByTime] = [this](void* p1) -> Answers {
        if (!p1)
            return {};
        const Present present = present_();
        const qint64 time = static_cast<const QDateTime*>(p1)->toSecsSinceEpoch();
        return byTime(Message::RequestRecordByTime, archive_.lastBefore(time, present.now, present.dataSet));
    };
    handlers[Message::RequestRecordOfPeriod] = [this](void* p1) -> Answers {
        if (!p1)
            return {};
        const Present present = present_();
        const qint64 time = static_cast<const QDateTime*>(p1)->toSecsSinceEpoch();
        return byTime(Message::RequestRecordOfPeriod,
                      archive_.firstAfter(time, present.now, present.dataSet));
    };
    handlers[Message::RequestExtraPacket] = [this](void* p1) { return lastPacket(plainValue(p1)); };
    handlers[Message::ClearServerData] = [this](void* p1) -> Answers {
        const int server = plainValue(p1);
        return server >= 1 && server <= 3 ? current(Message::ClearServerData) : Answers();
    };
    handlers[Message::GuardOn] = [this](void*) { return setGuard(true); };
    handlers[Message::GuardOff] = [this](void*) { return setGuard(false); };
    handlers[Message::OutputOn] = [this](void* p1) { return setOutput(plainValue(p1), true); };
    handlers[Message::OutputOff] = [this](void* p1) { return setOutput(plainValue(p1), false); };
    handlers[Message::SetMileage] = [this](void* p1) { return setMileage(static_cast<const float*>(p1)); };
}

Answers RecordRequests::current(Message request)
{
    const Present present = present_();
    const QByteArray record = archive_.current(present.now, present.dataSet);
    QByteArray frame = shortHeader(request, record) + record;
    // The shortest frame that is sent; a small data set is filled up behind its record.
    frame.append(std::max(0, vlk::kShortestCurrentRecord - frame.size()), '\0');
    return {Answer::bytes(frame)};
}

Answers RecordRequests::lastPacket(int kind)
{
    constexpr int key = 1;
    constexpr int tag = 3;
    if (kind != key && kind != tag)
        return {};
    const QByteArray packet =
        archive_.lastPacket(kind == key ? RecordKind::Key : RecordKind::Tag, present_().now);
    if (packet.isEmpty())
        return {};
    QByteArray frame;
    append(frame, static_cast<quint16>(packet.size()));
    return {Answer::bytes(frame + packet)};
}

Answers RecordRequests::setOutput(int output, bool on)
{
    constexpr int outputs = 16;
    if (output < 1 || output > outputs)
        return {};
    const int bit = 1 << (output - 1);
    memory_.change(present_().now, on ? EventCode::OutputOn : EventCode::OutputOff, [=](Controls& controls) {
        controls.outputs = static_cast<quint16>(on ? controls.outputs | bit : controls.outputs & ~bit);
    });
    return {};
}

Answers RecordRequests::setGuard(bool on)
{
    memory_.change(present_().now, on ? EventCode::GuardOn : EventCode::GuardOff,
                   [on](Controls& controls) { controls.guard = on; });
    return {};
}

Answers RecordRequests::setMileage(const float* km)
{
    if (!km || !std::isfinite(*km))
        return {};
    const qint64 now = present_().now;
    const double driven = archive_.moment(now).at.km;
    const double wanted = *km;
    memory_.change(now, EventCode::MileageSet,
                   [=](Controls& controls) { controls.mileageShift = wanted - driven; });
    return {};
}

} // namespace tracker
