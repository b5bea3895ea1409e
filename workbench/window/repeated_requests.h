#pragma once

// The requests of the plug-in on their way to the tracker. One that only reads and gets no answer, or one
// that cannot be right, is sent again until a right one comes; the plug-in gets exactly one answer to a
// request, and what comes on top of that is dropped. What the tracker holds may look wrong and be what it
// holds: a second answer with the same problem is passed on.
//
// Only the newest request of each number is sent again: whoever asks anew has given up on the one before.

#include "check/answer_check.h"
#include "check/plugin_names.h"
#include "tracker/simulated_tracker.h"

#include <QTimer>

#include <map>

namespace workbench {

class RepeatedRequests : public QObject
{
    Q_OBJECT

public:
    RepeatedRequests(tracker::SimulatedTracker& tracker, std::function<bool()> isSaving);

    // False when it is no request for the tracker.
    bool send(Message request, void* p1, void* p2);
    // Whether the plug-in is to get the answer that the tracker is giving.
    bool takesAnswer(Message answer, const void* p1);
    // What is wrong with the answer that is being passed on.
    const std::optional<AnswerProblem>& problem() const { return problem_; }
    // Nobody waits any more. An answer that comes all the same is passed on.
    void forget() { waiting_.clear(); }

Q_SIGNALS:
    void sentAgain(vlk::Message request);
    void dropped(vlk::Message answer);
    // It was not passed on. With the request that is sent again, none when nobody waits for it any more.
    void refused(vlk::Message answer, const workbench::AnswerProblem& problem,
                 std::optional<vlk::Message> request);

private:
    struct Waiting
    {
        quint32 ticket;
        Asked asked;
        std::unique_ptr<QTimer> timer;
        std::optional<AnswerProblem::Kind> refused; // the last answer, for this
    };

    void repeat(Message request, const std::function<void()>& sending);
    bool mustBeRefused(Message answer, const Waiting* waiting) const;
    void refuse(Message answer, Waiting* waiting);
    std::function<void()> sending(Message request, void* p1, quint32 ticket);

    tracker::SimulatedTracker& tracker_;
    AnswerCheck check_;
    std::optional<AnswerProblem> problem_;
    quint32 lastTicket_ = 0;
    std::map<Message, Waiting> waiting_;
    std::map<quint32, bool> repeated_; // the tickets that were sent again, and whether they are answered
};

} // namespace workbench
