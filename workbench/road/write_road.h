#pragma once

// The way of a configuration into the tracker: read what the tracker holds, compare, let it be looked at,
// back up, write, read back, compare. Nothing is called written that was not read back and found equal; a
// fault at any step ends the way with a report.
//
// It knows no window: who shows the review says approve() or cancel().

#include "road/pending_write.h"

#include <QTimer>

namespace workbench {

class Backups;

class WriteRoad : public QObject
{
    Q_OBJECT

public:
    using Step = RoadReport::Step;
    // How long a silence may last. A tracker answers a question, or takes a block of a file, within a second,
    // slow ones in two.
    struct Timing
    {
        // Worth a word: as long as any answer is waited for before somebody is told.
        int noticeMs = 3000;
        // No answer is expected any more: as long again, for whoever reads the word and sees to the cable. To
        // wait on would help nobody: a tracker that has all of the file is read back all the same.
        int patienceMs = 6000;
    };

    WriteRoad(TrackerPort& port, Backups& backups, Compare compare, Advise advise, Timing timing);
    WriteRoad(TrackerPort& port, Backups& backups, Compare compare, Advise advise);

    bool isBusy() const { return isBusy_; }
    bool isInReview() const { return isBusy_ && report_.step == Step::Review; }
    Step step() const { return report_.step; }
    // No more than a report can be had of it from now on.
    bool isTaken() const { return isTaken_; }
    // False while another one is under way.
    bool begin(const WriteRequest& request);
    // What is being reviewed may be written.
    void approve();
    // False when it is too late: the tracker has the file.
    bool cancel();
    // Reports the write that an earlier run did not live to see the end of, if there is one.
    void tellLeft();
    // Somebody else has read this of the attached tracker.
    void tellRead(const QByteArray& document);
    // A request that came to nothing before it was on its way.
    void reject(const WriteRequest& request, RoadReport::Fault fault, const QString& detail);

Q_SIGNALS:
    void stepChanged(workbench::RoadReport::Step step);
    void reviewReady(const workbench::WriteReview& review);
    void progressed(qint64 bytes, qint64 all);
    void taken();
    // The tracker owes an answer from then on.
    void waits(const QDateTime& since);
    // Nothing was heard of the tracker since then, and then something was.
    void silent(const QDateTime& since);
    void heard();
    void ended(const workbench::RoadReport& report);
    // A read has shown what became of a write that had ended unknown: its report is this one from now on.
    void settled(const workbench::RoadReport& report);

private:
    using Fault = RoadReport::Fault;
    using Outcome = RoadReport::Outcome;

    void setStep(Step step);
    void listen();
    void readPresent();
    void readCame(const PortAnswer& answer);
    void previousCame(const QByteArray& document);
    void presentCame(const QByteArray& document);
    void readBackCame(const QByteArray& document);
    void writeCame(const PortAnswer& answer);
    // Whether the tracker holds something else than this.
    bool isChanged(const QByteArray& known) const;
    void giveUp();
    void fail(Fault fault, const PortAnswer& answer = {});
    void end(Outcome outcome);
    // What a write of these changes led to, setting by setting, by what was read after it; none where it
    // cannot be compared.
    std::optional<Outcome> outcomeIn(const QByteArray& document, const QByteArray& before,
                                     const SettingChanges& changes, RoadReport& report) const;
    // What this, read of the attached tracker, tells of the unsettled write, which is settled by it.
    std::optional<RoadReport> settledBy(const QByteArray& document);
    // What the report of a write tells of an earlier one.
    void settle(RoadReport& report);
    // What a read of the tracker has shown of a write.
    void keepInPart(const RoadReport& seen);

    TrackerPort& port_;
    Backups& backups_;
    Compare compare_;
    Advise advise_;
    Timing timing_;
    PendingWrite pending_;
    QTimer notice_;
    QTimer patience_;
    QDateTime since_; // of the silence
    bool isSilent_ = false;
    bool isBusy_ = false;
    bool wasGone_ = false;
    bool isTaken_ = false;
    TrackerPort::Copy reading_ = TrackerPort::Copy::Present;
    QByteArray before_; // what the tracker held
    WriteReview review_;
    RoadReport report_;
    RoadReport unsettled_; // the last one that ended unknown, until the tracker shows what became of it
    RoadReport inPart_;    // the last one that was taken in part, until one is confirmed
};

} // namespace workbench
