#pragma once

// What the tracker remembers beside its configuration, in a file of the store's folder: when it was built
// in, what a user has set on it and when, what was poured into the tanks, and the program of the CAN adapter.
// A damaged file begins anew.

#include "tracker/event_code.h"
#include "tracker/moment.h"

#include <functional>
#include <optional>
#include <vector>

namespace tracker {

class TrackerMemory
{
public:
    TrackerMemory(const QString& folder, qint64 now);

    // The midnight UTC from which on there are records.
    qint64 firstMidnight() const { return firstMidnight_; }

    // What held at that second.
    Controls controlsAt(qint64 time) const;
    // The event of the last change later than `after` and not later than `until`.
    std::optional<EventCode> changeWithin(qint64 after, qint64 until) const;
    void change(qint64 time, EventCode code, const std::function<void(Controls& controls)>& set = {});

    TankPours& pours() { return pours_; }

    int canLogProgram() const { return canLogProgram_; }
    void setCanLogProgram(int program);

private:
    struct Change
    {
        qint64 time;
        EventCode code;
        Controls controls; // from then on
    };

    void load();
    void save() const;

    QString file_;
    qint64 firstMidnight_ = 0;
    std::vector<Change> changes_; // by time
    TankPours pours_;
    int canLogProgram_ = 0;
};

} // namespace tracker
