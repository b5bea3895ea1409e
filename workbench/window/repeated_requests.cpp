#include "window/repeated_requests.h"

#include "window/answer_watch.h"
#include "window/request_table.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

Parameter parameterOf(Message request)
{
    const auto* info = std::find_if(std::begin(messages), std::end(messages),
                                    [request](const MessageInfo& row) { return row.number == request; });
    return info == std::end(messages) ? Parameter::None : info->p1;
}

} // namespace

RepeatedRequests::RepeatedRequests(tracker::SimulatedTracker& tracker) : tracker_(tracker)
{
    // What was under way is lost with the cable.
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, [this] {
        waiting_.clear();
        repeated_.clear();
    });
}

bool RepeatedRequests::send(Message request, void* p1, void* p2)
{
    const quint32 ticket = ++lastTicket_;
    if (hasEffect(request, Effect::Reads) && tracker_.attached()) {
        auto timer = std::make_unique<QTimer>();
        connect(timer.get(), &QTimer::timeout, this,
                [this, request, again = sending(request, p1, ticket)] { repeat(request, again); });
        timer->start(AnswerWatch::patienceMs);
        waiting_[request] = {ticket, std::move(timer)};
    }
    return tracker_.handle(request, p1, p2, ticket);
}

// What an address leads to is the plug-in's and goes with its call.
std::function<void()> RepeatedRequests::sending(Message request, void* p1, quint32 ticket)
{
    const auto send = [this, request, ticket](void* parameter) {
        tracker_.handle(request, parameter, nullptr, ticket);
    };
    const auto copying = [&send](const auto* value) -> std::function<void()> {
        return [send, copy = *value]() mutable { send(&copy); };
    };
    if (p1 != nullptr) {
        switch (parameterOf(request)) {
        case Parameter::Int32Address:
            return copying(static_cast<const std::int32_t*>(p1));
        case Parameter::BytesAddress:
            return copying(static_cast<const QByteArray*>(p1));
        case Parameter::DateTimeAddress:
            return copying(static_cast<const QDateTime*>(p1));
        default:
            break;
        }
    }
    return [send, p1] { send(p1); };
}

void RepeatedRequests::repeat(Message request, const std::function<void()>& sending)
{
    repeated_.emplace(waiting_.at(request).ticket, false);
    Q_EMIT sentAgain(request);
    sending();
}

bool RepeatedRequests::takesAnswer(Message answer)
{
    const quint32 ticket = tracker_.ticket();
    std::erase_if(waiting_, [ticket](const auto& entry) { return entry.second.ticket == ticket; });
    const auto repeated = repeated_.find(ticket);
    if (repeated == repeated_.end())
        return true;
    if (std::exchange(repeated->second, true)) {
        Q_EMIT dropped(answer);
        return false;
    }
    return true;
}

} // namespace workbench
