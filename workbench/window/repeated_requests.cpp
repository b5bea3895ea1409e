#include "window/repeated_requests.h"

#include "window/answer_watch.h"
#include "window/request_table.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

Parameter parameterOf(Message request)
{
    const auto* info =
        std::ranges::find_if(kMessages, [request](const MessageInfo& row) { return row.number == request; });
    return info == std::end(kMessages) ? Parameter::None : info->p1;
}

// After an answer that is refused the tracker is asked again sooner than after none.
constexpr int kRefusedMs = 1000;

Asked askedBy(Message request, const void* p1)
{
    Asked asked{request, {}, {}, {}};
    if (!p1)
        return asked;
    if (request == Message::RequestRecordByNumber)
        asked.number = *static_cast<const quint32*>(p1);
    else if (request == Message::RequestLines)
        asked.lines = *static_cast<const QByteArray*>(p1);
    else if (parameterOf(request) == Parameter::DateTimeAddress)
        asked.time = static_cast<const QDateTime*>(p1)->toSecsSinceEpoch();
    return asked;
}

bool answersReading(Message answer)
{
    return std::ranges::any_of(kMessages, [answer](const MessageInfo& row) {
        return row.answer == static_cast<quint32>(answer) &&
               (hasEffect(row.number, Effect::Reads) || hasEffect(row.number, Effect::MayBeMute));
    });
}

} // namespace

RepeatedRequests::RepeatedRequests(tracker::SimulatedTracker& tracker, std::function<bool()> isSaving)
    : tracker_(tracker), check_(std::move(isSaving))
{
    // What was under way is lost with the cable.
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, [this] {
        waiting_.clear();
        repeated_.clear();
        check_.forget();
    });
}

bool RepeatedRequests::send(Message request, void* p1, void* p2)
{
    const quint32 ticket = ++lastTicket_;
    const bool isReading = hasEffect(request, Effect::Reads);
    if ((isReading || hasEffect(request, Effect::MayBeMute)) && tracker_.attached()) {
        auto timer = std::make_unique<QTimer>();
        connect(timer.get(), &QTimer::timeout, this,
                [this, request, again = sending(request, p1, ticket)] { repeat(request, again); });
        if (isReading)
            timer->start(AnswerWatch::kPatienceMs);
        const Asked asked = askedBy(request, p1);
        check_.note(asked);
        waiting_[request] = {ticket, asked, std::move(timer), {}};
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
    if (p1) {
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
    const Waiting& waiting = waiting_.at(request);
    if (hasEffect(request, Effect::Reads))
        waiting.timer->start(AnswerWatch::kPatienceMs);
    else
        waiting.timer->stop();
    repeated_.emplace(waiting.ticket, false);
    Q_EMIT sentAgain(request);
    sending();
}

bool RepeatedRequests::takesAnswer(Message answer, const void* p1)
{
    const quint32 ticket = tracker_.ticket();
    const auto repeated = repeated_.find(ticket);
    if (repeated != repeated_.end() && repeated->second) {
        Q_EMIT dropped(answer);
        return false;
    }
    const auto waiting =
        std::ranges::find_if(waiting_, [ticket](const auto& entry) { return entry.second.ticket == ticket; });
    Waiting* entry = waiting == waiting_.end() ? nullptr : &waiting->second;
    problem_ = check_.look(answer, p1, entry ? entry->asked : Asked{});
    if (mustBeRefused(answer, entry)) {
        refuse(answer, entry);
        return false;
    }
    if (entry)
        waiting_.erase(waiting);
    if (repeated != repeated_.end())
        repeated->second = true;
    return true;
}

bool RepeatedRequests::mustBeRefused(Message answer, const Waiting* waiting) const
{
    const bool cameAgain = waiting && problem_ && problem_->mayBeHeld() && waiting->refused == problem_->kind;
    return problem_ && answersReading(answer) && !cameAgain;
}

void RepeatedRequests::refuse(Message answer, Waiting* waiting)
{
    if (!waiting) {
        Q_EMIT refused(answer, *problem_, {});
        return;
    }
    waiting->refused = problem_->kind;
    waiting->timer->start(kRefusedMs);
    Q_EMIT refused(answer, *problem_, waiting->asked.request);
}

} // namespace workbench
