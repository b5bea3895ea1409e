#pragma once

// Requests for what the tracker measures now: line and supply voltages, accelerometer, key and tag reader,
// and the program of the CAN adapter.

#include "tracker/answer.h"
#include "tracker/tracker_memory.h"
#include "tracker/vehicle.h"

namespace tracker {

class LiveRequests
{
public:
    LiveRequests(TrackerMemory& memory, std::function<Vehicle()> present);

    void addTo(Handlers& handlers);

private:
    Answers lines(const QByteArray* list) const;
    Answers analog() const;

    TrackerMemory& memory_;
    std::function<Vehicle()> present_;
};

} // namespace tracker
