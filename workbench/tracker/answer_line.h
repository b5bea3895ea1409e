#pragma once

// The cable between the tracker and the plug-in: answers go over it later, from the event loop, with the
// faults that are switched on. What is under way when it is pulled is lost.

#include "tracker/answer.h"
#include "tracker/faults.h"

#include <QObject>

#include <memory>

namespace tracker {

class AnswerLine : public QObject
{
    Q_OBJECT

public:
    using Sender = std::function<void(vlk::Message id, void* p1, void* p2)>;

    void setSender(Sender sender) { sender_ = std::move(sender); }
    const Faults& faults() const { return faults_; }
    void setFaults(const Faults& faults);

    bool plugged() const { return cable_ != nullptr; }
    void plug();
    void unplug();

    void post(const Answer& answer);
    // The ticket of the answer that the sender is being given; 0 outside of that.
    quint32 ticket() const { return ticket_; }
    void dropSearch();
    // As bytes look on the other end.
    QByteArray distorted(const QByteArray& bytes, Answer::Form form = Answer::Form::Bytes) const;
    // True when the fault pulls the cable now; it clears itself.
    bool takeUnplug();

Q_SIGNALS:
    void pulled();
    void faultsChanged();

private:
    void deliver(const Answer& answer);

    Sender sender_;
    quint32 ticket_ = 0;
    Faults faults_;
    // What is under way hangs on these and goes with them.
    std::unique_ptr<QObject> cable_;
    std::unique_ptr<QObject> search_;
};

} // namespace tracker
