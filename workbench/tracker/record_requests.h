#pragma once

// Requests for records, and the commands whose effect the next record shows.
//
// In front of a record stand: the low byte of the request's number and the length of the record (3 bytes),
// for a record by time its number and time and two zero bytes behind these (13 bytes). In front of a packet
// stands its length alone (2 bytes). All little-endian.

#include "tracker/answer.h"
#include "tracker/record_archive.h"

namespace tracker {

class RecordRequests
{
public:
    struct Present
    {
        qint64 now;
        DataSet dataSet;
    };

    // `present` is asked for every request.
    RecordRequests(RecordArchive& archive, TrackerMemory& memory, std::function<Present()> present);

    void addTo(Handlers& handlers);

private:
    Answers current(vlk::Message request);
    Answers lastPacket(int kind);
    Answers setOutput(int output, bool on);
    Answers setGuard(bool on);
    Answers setMileage(const float* km);

    RecordArchive& archive_;
    TrackerMemory& memory_;
    std::function<Present()> present_;
};

} // namespace tracker
