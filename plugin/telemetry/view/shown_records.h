#pragma once

// What the parts of the window of records share, table, curves, track and lists: the records of a file or of
// a period that was just read, which of them pass the filter, the one that is looked at, and the span of time
// in sight. Each part shows what it is told here and tells here what the user chose, so that a record, a
// cursor and a place on the track are one moment. A record counts from 0, in the order of the file.

#include "telemetry/files/record_columns.h"
#include "telemetry/files/telemetry_contents.h"

#include <QObject>

namespace vlk {

// Seconds since 1970 in UTC, both ends in it.
struct TimeSpan
{
    double from = 0;
    double to = 0;

    bool contains(double time) const { return time >= from && time <= to; }
    bool operator==(const TimeSpan&) const = default;
};

class ShownRecords : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // All of them pass, the first one is looked at, all of their time is in sight.
    void setContents(TelemetryContents contents);
    const RecordStore& records() const { return contents_.records; }
    const TelemetryTitles& titles() const { return contents_.origin.titles; }
    RecordColumns& columns() { return *columns_; }
    // In which times are shown, in seconds east of UTC.
    qint32 utcOffset() const;
    // From the earliest to the latest record; times of 0 are no times.
    TimeSpan wholeTime() const { return wholeTime_; }

    // Rising.
    const std::vector<int>& passing() const { return passing_; }
    void setPassing(std::vector<int> records);

    // -1 without records.
    int current() const { return current_; }
    void setCurrent(int record);
    // The one whose time is next to this one.
    int nearestTo(double time) const;

    TimeSpan inSight() const { return inSight_; }
    void setInSight(const TimeSpan& span);

Q_SIGNALS:
    void contentsChanged();
    void passingChanged();
    void currentChanged(int record);
    void inSightChanged();

private:
    TelemetryContents contents_;
    std::unique_ptr<RecordColumns> columns_ = std::make_unique<RecordColumns>(contents_.records);
    TimeSpan wholeTime_;
    std::vector<int> passing_;
    // Records with a time, by it.
    std::vector<int> byTime_;
    int current_ = -1;
    TimeSpan inSight_;
};

} // namespace vlk
