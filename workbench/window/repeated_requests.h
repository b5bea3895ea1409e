#pragma once

// The requests of the plug-in on their way to the tracker. One that only reads and gets no answer is sent
// again every few seconds until one comes; the plug-in gets exactly one answer to a request, and what comes
// on top of that is dropped.
//
// Of each number the newest request alone is sent again: whoever asks anew has given up on the one before.

#include "plugin_names.h"
#include "tracker/simulated_tracker.h"

#include <QTimer>

#include <map>

namespace workbench {

class RepeatedRequests : public QObject
{
    Q_OBJECT

public:
    explicit RepeatedRequests(tracker::SimulatedTracker& tracker);

    // False when it is no request for the tracker.
    bool send(Message request, void* p1, void* p2);
    // Of the answer that the tracker is giving: whether the plug-in is to get it.
    bool takesAnswer(Message answer);
    // Nobody waits any more. An answer that comes all the same is passed on.
    void forget() { waiting_.clear(); }

Q_SIGNALS:
    void sentAgain(vlk::Message request);
    void dropped(vlk::Message answer);

private:
    struct Waiting
    {
        quint32 ticket;
        std::unique_ptr<QTimer> timer;
    };

    void repeat(Message request, const std::function<void()>& sending);
    std::function<void()> sending(Message request, void* p1, quint32 ticket);

    tracker::SimulatedTracker& tracker_;
    quint32 lastTicket_ = 0;
    std::map<Message, Waiting> waiting_;
    std::map<quint32, bool> repeated_; // the tickets that were sent again, and whether they are answered
};

} // namespace workbench
