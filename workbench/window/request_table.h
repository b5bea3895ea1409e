#pragma once

// What the requests of the plug-in do to the tracker, one row each, and what follows from it for the host:
// only what reads may be asked again when no answer comes, and what destroys is asked of the user first.

#include "check/plugin_names.h"
#include "plugin/host/host_interface.h"

namespace workbench {

enum class Effect {
    Reads,     // asking twice does no harm: it is asked again until an answer comes
    MayBeMute, // reads what the tracker may not have; then it stays silent, so asking again would never end
    Starts,    // begins or ends something on the tracker, or moves it on by a step: once only
    Switches,  // an output, which is told when it is done: once only, and on the road after a question
    Destroys,  // what was there is gone: once only, and after a question
};

struct RequestRow
{
    Message request;
    Effect effect;
};

// All that goes to the tracker but a configuration, which travels as a file (host_session.h).
inline constexpr RequestRow kRequestRows[] = {
    {Message::RequestLines, Effect::Reads},
    {Message::RequestLiveKey, Effect::Reads},
    {Message::RequestSupply, Effect::Reads},
    {Message::RequestAnalog, Effect::Reads},
    {Message::RequestAccel, Effect::Reads},
    {Message::RequestAccelCommand, Effect::Starts},
    {Message::StartBtSearch, Effect::Starts},
    {Message::CancelBtSearch, Effect::Starts},
    {Message::WaitStepEnd, Effect::Starts},
    {Message::RequestRfid, Effect::Reads},
    {Message::SetCanLogProgram, Effect::Starts},
    {Message::RequestCanLogProgram, Effect::Reads},
    {Message::RequestCurrentRecord, Effect::Reads},
    {Message::RequestRecordByNumber, Effect::Reads},
    {Message::RequestRecordByTime, Effect::Reads},
    {Message::RequestRecordOfPeriod, Effect::Reads},
    {Message::RequestExtraPacket, Effect::MayBeMute},
    {Message::ClearServerData, Effect::Destroys},
    {Message::GuardOff, Effect::Starts},
    {Message::GuardOn, Effect::Starts},
    {Message::OutputOn, Effect::Switches},
    {Message::OutputOff, Effect::Switches},
    {Message::SetMileage, Effect::Destroys},
    {Message::TachographQuestion, Effect::Reads},
    {Message::TachographFileRequest, Effect::Starts}, // the tracker fetches the file from the tachograph
    {Message::TachographFileRead, Effect::Starts},    // writes a file
};

constexpr const RequestRow* findRequest(Message request)
{
    for (const RequestRow& row : kRequestRows) {
        if (row.request == request)
            return &row;
    }
    return nullptr;
}

// A request without a row would be taken for one that may be repeated, or not, by accident.
static_assert([] {
    for (const MessageInfo& info : kMessages) {
        if (info.direction == Direction::ToHost && info.answer != 0 && !findRequest(info.number))
            return false;
    }
    return true;
}());

constexpr bool hasEffect(Message request, Effect effect)
{
    const RequestRow* row = findRequest(request);
    return row && row->effect == effect;
}

} // namespace workbench
