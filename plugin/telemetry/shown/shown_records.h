#pragma once

// What the parts of the window of records share, table, curves, track and lists: the records of a file or of
// a period that was just read, which of them pass the filter, the one that is looked at, and the span of time
// in sight. Each part shows what it is told here and tells here what the user chose, so that a record, a
// cursor and a place on the track are one moment. A record counts from 0, in the order of the file.

#include "telemetry/files/record_columns.h"
#include "telemetry/files/telemetry_contents.h"
#include "telemetry/shown/step_queue.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace vlk {

// Seconds since 1970 in UTC, both ends in it.
struct TimeSpan
{
    double from = 0;
    double to = 0;

    bool contains(double time) const { return time >= from && time <= to; }
    bool operator==(const TimeSpan&) const = default;
};

// A column of no item, litres for one: a number a record, NaN for none.
struct ComputedColumn
{
    QString name; // that stays the same in every language
    QString title;
    QString unit;
    NumberColumn numbers;
    const char* key = nullptr; // of the title
};

// A rise or a fall that was found, for curves and track to mark.
struct FoundEvent
{
    int record;
    bool isRise;
    QString text;

    bool operator==(const FoundEvent&) const = default;
};

class ShownRecords : public QObject
{
    Q_OBJECT

public:
    // Above that the parts follow new contents in steps.
    static constexpr int kMostAtOnce = 50'000;

    explicit ShownRecords(QObject* parent = nullptr) : QObject(parent), steps_(new StepQueue(this))
    {
        connect(steps_, &StepQueue::wentOn, this, &ShownRecords::wentOn);
    }

    // What is to be known of contents before they are shown, some 20 ms of a million records, may be found
    // out in an earlier turn.
    void prepare(const std::shared_ptr<TelemetryContents>& contents);
    // All of them pass, the first one is looked at, all of their time is in sight.
    // While a file is read there are none yet.
    enum class Reading { Done, Underway };
    void setContents(std::shared_ptr<TelemetryContents> contents, Reading reading = Reading::Done);
    void setContents(TelemetryContents contents)
    {
        setContents(std::make_shared<TelemetryContents>(std::move(contents)));
    }
    bool isBeingRead() const { return reading_ == Reading::Underway; }
    // For other windows that show the same records.
    std::shared_ptr<const TelemetryContents> contents() const { return contents_; }
    const RecordStore& records() const { return contents_->records; }
    const TelemetryTitles& titles() const { return contents_->origin.titles; }
    RecordColumns& columns() { return *columns_; }
    // Puts one that came meanwhile behind the others, from its type byte on. What showed the latest time
    // shows it now; where the last record was looked at, it is this one now if the looking follows.
    enum class Current { Stays, Follows };
    void append(std::span<const std::uint8_t> record, Current current = Current::Follows);
    // What a part does about new contents, some milliseconds of work on a million records: at once where they
    // are few, else when the event loop comes to it. Other contents end what is left of it.
    void later(std::function<void()> step);
    bool isLeftToDo() const { return !steps_->isEmpty(); }
    // In which times are shown, in seconds east of UTC.
    qint32 utcOffset() const;
    // From the earliest to the latest record; times of 0 are no times.
    TimeSpan wholeTime() const { return wholeTime_; }

    // Rising.
    const std::vector<int>& passing() const { return passing_; }
    // `passes` tells it of those that are added later; null lets them pass.
    using Passes = std::function<bool(int record)>;
    void setPassing(std::vector<int> records, Passes passes = {});

    // Several rows of the table that the user chose; empty for one or none.
    const std::vector<int>& chosen() const { return chosen_; }
    void setChosen(std::vector<int> records);

    // -1 without records.
    int current() const { return current_; }
    void setCurrent(int record);
    // Those that have a time, by it.
    const std::vector<int>& byTime() const { return byTime_; }
    // Those whose time cannot be right, which are not among them; in the order of the file.
    const std::vector<int>& strayed() const { return strayed_; }
    // The one in sight whose time is next to this one; -1 where none is in sight.
    int nearestInSight(double time) const;

    TimeSpan inSight() const { return inSight_; }
    void setInSight(const TimeSpan& span);

    const std::vector<ComputedColumn>& computed() const { return computed_; }
    void setComputed(std::vector<ComputedColumn> columns);
    const std::vector<FoundEvent>& found() const { return found_; }
    void setFound(std::vector<FoundEvent> events);

Q_SIGNALS:
    void contentsChanged();
    void passingChanged();
    void chosenChanged();
    void currentChanged(int record);
    void inSightChanged();
    void recordsAdded(int first);
    void computedChanged();
    void foundChanged();
    // With what is done later, where that lasts longer than a moment; 1 at its end.
    void wentOn(double share);

private:
    struct Prepared
    {
        std::shared_ptr<TelemetryContents> contents;
        std::unique_ptr<RecordColumns> columns;
        std::vector<int> byTime;
        std::vector<int> strayed;
    };

    std::optional<Prepared> prepared_;
    std::shared_ptr<TelemetryContents> contents_ = std::make_shared<TelemetryContents>();
    std::unique_ptr<RecordColumns> columns_ = std::make_unique<RecordColumns>(contents_->records);
    Reading reading_ = Reading::Done;
    StepQueue* steps_;
    TimeSpan wholeTime_;
    std::vector<int> passing_;
    Passes passes_;
    std::vector<int> chosen_;
    std::vector<int> byTime_;
    std::vector<int> strayed_;
    int current_ = -1;
    TimeSpan inSight_;
    std::vector<ComputedColumn> computed_;
    std::vector<FoundEvent> found_;
};

} // namespace vlk
