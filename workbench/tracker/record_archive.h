#pragma once

// The records that the tracker holds: the newest 131,072 of its drive, each made when it is asked for with
// the data set that the tracker is told to keep at that time.

#include "tracker/drive.h"
#include "tracker/record_bytes.h"
#include "tracker/tracker_memory.h"

namespace tracker {

class RecordArchive
{
public:
    RecordArchive(const TrackerMemory& memory, const SettingsHistory& settings);

    // Records later than this are made by other settings.
    void settingsChanged(qint64 time) { drive_.settingsChanged(time); }

    struct Found
    {
        quint32 number;
        quint32 time;
        QByteArray bytes;
    };

    // Numbers and times outside of what is held give the nearest record.
    Found byNumber(quint32 number, qint64 now, const DataSet& dataSet);
    Found lastBefore(qint64 time, qint64 now, const DataSet& dataSet);
    Found firstAfter(qint64 time, qint64 now, const DataSet& dataSet);
    // What holds now, under the number of the newest record.
    QByteArray current(qint64 now, const DataSet& dataSet);
    // The last packet with a key or a tag, as the answer to the question about it; empty when none is near.
    QByteArray lastPacket(RecordKind kind, qint64 now);

    Moment moment(qint64 now) { return drive_.at(now); }

private:
    Moment record(quint32 number);

    const TrackerMemory& memory_;
    Drive drive_;
};

} // namespace tracker
