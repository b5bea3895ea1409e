#include "window/simulated_port.h"

#include "tracker/write_report.h"

#include <QTimer>

#include <algorithm>

namespace workbench {

namespace {

constexpr qint64 kBlockSize = 2048; // bytes
constexpr int kBlockMs = 15;
constexpr int kSilenceMs = 100; // until it is looked whether the silence is over

} // namespace

SimulatedPort::SimulatedPort(tracker::SimulatedTracker& tracker) : tracker_(tracker)
{
    connect(&tracker_, &tracker::SimulatedTracker::attachedChanged, this, [this](bool attached) {
        if (!attached)
            Q_EMIT gone();
    });
}

TrackerIdentity SimulatedPort::tracker() const
{
    return {tracker_.model(), tracker_.attached() ? tracker_.text2() : QString(), tracker_.vehicleName()};
}

void SimulatedPort::drop()
{
    run_.reset();
}

void SimulatedPort::later(int ms, const std::function<void()>& act)
{
    run_ = std::make_unique<QObject>();
    QTimer::singleShot(ms, run_.get(), act);
}

void SimulatedPort::read(Copy copy)
{
    later(kBlockMs + std::max(0, tracker_.faults().delayMs), [this, copy] { answer(copy); });
}

void SimulatedPort::answer(Copy copy)
{
    using Outcome = tracker::Reading::Outcome;
    const tracker::Reading reading =
        copy == Copy::Present ? tracker_.readConfiguration() : tracker_.readPrevious();
    switch (reading.outcome) {
    case Outcome::Silent:
        later(kSilenceMs, [this, copy] { answer(copy); });
        break;
    case Outcome::Detached:
        Q_EMIT readEnded({PortAnswer::Outcome::Detached, {}, {}, {}});
        break;
    case Outcome::Unplugged:
        Q_EMIT readEnded({PortAnswer::Outcome::Unplugged, {}, {}, {}});
        break;
    case Outcome::Came:
        if (copy == Copy::Previous && reading.document.isEmpty())
            Q_EMIT readEnded(
                {PortAnswer::Outcome::Refused, {}, QStringLiteral("wb_refused_no_previous"), {}});
        else
            Q_EMIT readEnded({PortAnswer::Outcome::Done, reading.document, {}, {}});
        break;
    }
}

void SimulatedPort::write(const QByteArray& document)
{
    document_ = document;
    sent_ = 0;
    later(kBlockMs, [this] { sendBlock(); });
}

void SimulatedPort::sendBlock()
{
    using Block = tracker::SimulatedTracker::Block;
    switch (tracker_.takeBlock()) {
    case Block::Gone:
        Q_EMIT writeEnded({PortAnswer::Outcome::Unplugged, {}, {}, {}});
        return;
    case Block::Silent:
        later(kSilenceMs, [this] { sendBlock(); });
        return;
    case Block::Kept:
        break;
    }
    sent_ = std::min(sent_ + kBlockSize, static_cast<qint64>(document_.size()));
    const bool isAll = sent_ == document_.size();
    // Who hears of it may drop the rest.
    later(kBlockMs, [this] { sendBlock(); });
    Q_EMIT sent(sent_, document_.size());
    if (isAll && run_)
        takeAll();
}

// From here on it is the tracker's; only its answer may be lost.
void SimulatedPort::takeAll()
{
    const tracker::WriteReport report = tracker_.takeConfiguration(document_);
    PortAnswer answer;
    if (!report.accepted)
        answer = tracker_.attached()
                     ? PortAnswer{PortAnswer::Outcome::Refused, {}, report.reasonKey, report.detail}
                     : PortAnswer{PortAnswer::Outcome::Unplugged, {}, {}, {}};
    later(kBlockMs + std::max(0, tracker_.faults().delayMs), [this, answer] { answerWrite(answer); });
    Q_EMIT taken();
}

void SimulatedPort::answerWrite(const PortAnswer& answer)
{
    if (tracker_.attached() && tracker_.faults().silence)
        later(kSilenceMs, [this, answer] { answerWrite(answer); });
    else if (tracker_.attached())
        Q_EMIT writeEnded(answer);
    else
        Q_EMIT writeEnded({PortAnswer::Outcome::Unplugged, {}, {}, {}});
}

} // namespace workbench
