#pragma once

// The simulated tracker as the write road sees it: answers take their time, a written file goes over the
// cable block by block, and while the tracker is silent nothing comes.

#include "road/tracker_port.h"
#include "tracker/simulated_tracker.h"

#include <functional>
#include <memory>

namespace workbench {

class SimulatedPort : public TrackerPort
{
    Q_OBJECT

public:
    explicit SimulatedPort(tracker::SimulatedTracker& tracker);

    TrackerIdentity tracker() const override;
    void read(Copy copy) override;
    void write(const QByteArray& document) override;
    void drop() override;

private:
    void later(int ms, const std::function<void()>& act);
    void answer(Copy copy);
    void sendBlock();
    void takeAll();
    void answerWrite(const PortAnswer& answer);

    tracker::SimulatedTracker& tracker_;
    std::unique_ptr<QObject> run_; // what is under way hangs on it
    QByteArray document_;
    qint64 sent_ = 0;
};

} // namespace workbench
