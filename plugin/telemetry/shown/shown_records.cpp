#include "telemetry/shown/shown_records.h"

#include "base/clock.h"
#include "telemetry/files/title_lines.h"
#include "telemetry/files/vehicle_times.h"

#include <algorithm>
#include <numeric>

namespace vlk {

void ShownRecords::prepare(const std::shared_ptr<TelemetryContents>& contents)
{
    prepared_.emplace();
    prepared_->contents = contents;
    prepared_->columns = std::make_unique<RecordColumns>(
        contents->records, typeLetters(contents->origin.titles).toLatin1().toStdString(), contents->damaged);
    prepared_->byTime = recordsByTime(*prepared_->columns, &prepared_->strayed);
}

void ShownRecords::setContents(std::shared_ptr<TelemetryContents> contents, Reading reading)
{
    if (!prepared_ || prepared_->contents != contents)
        prepare(contents);
    steps_->clear();
    reading_ = reading;
    contents_ = std::move(contents);
    columns_ = std::move(prepared_->columns);
    byTime_ = std::move(prepared_->byTime);
    strayed_ = std::move(prepared_->strayed);
    prepared_.reset();
    const std::vector<quint32>& times = columns_->times();
    passing_.resize(times.size());
    std::iota(passing_.begin(), passing_.end(), 0);
    passes_ = {};
    chosen_.clear();
    wholeTime_ = byTime_.empty() ? TimeSpan()
                                 : TimeSpan{static_cast<double>(times[byTime_.front()]),
                                            static_cast<double>(times[byTime_.back()])};
    inSight_ = wholeTime_;
    current_ = times.empty() ? -1 : 0;
    computed_.clear();
    found_.clear();
    Q_EMIT contentsChanged();
}

void ShownRecords::later(std::function<void()> step)
{
    if (records().size() <= kMostAtOnce)
        step();
    else
        steps_->add(std::move(step));
}

void ShownRecords::append(std::span<const std::uint8_t> record, Current current)
{
    steps_->finish();
    const int added = records().size();
    const bool isFollowed = current_ == added - 1 && (current == Current::Follows || added == 0);
    const TimeSpan inSight = inSight_;
    const bool showedLatest = byTime_.empty() || inSight_.to >= wholeTime_.to;
    const bool showedAll = showedLatest && inSight_.from <= wholeTime_.from;
    contents_->records.add(record);
    const std::vector<quint32>& times = columns_->times();
    const quint32 time = times[added];
    if (!passes_ || passes_(added))
        passing_.push_back(added);
    if (isFollowed)
        current_ = added;
    if (time != 0) {
        wholeTime_ = byTime_.empty() ? TimeSpan{static_cast<double>(time), static_cast<double>(time)}
                                     : TimeSpan{std::min(wholeTime_.from, static_cast<double>(time)),
                                                std::max(wholeTime_.to, static_cast<double>(time))};
        const auto timeOfRecord = [&](int each) { return times[each]; };
        byTime_.insert(std::ranges::upper_bound(byTime_, time, {}, timeOfRecord), added);
        if (showedAll)
            inSight_ = wholeTime_;
        else if (showedLatest)
            inSight_ = {inSight_.from + wholeTime_.to - inSight_.to, wholeTime_.to};
    }
    Q_EMIT recordsAdded(added);
    if (inSight_ != inSight)
        Q_EMIT inSightChanged();
    if (isFollowed)
        Q_EMIT currentChanged(current_);
}

qint32 ShownRecords::utcOffset() const
{
    return contents_->records.utcOffset().value_or(localOffset());
}

void ShownRecords::setPassing(std::vector<int> records, Passes passes)
{
    passes_ = std::move(passes);
    if (passing_ == records)
        return;
    passing_ = std::move(records);
    Q_EMIT passingChanged();
}

void ShownRecords::setChosen(std::vector<int> records)
{
    if (chosen_ == records)
        return;
    chosen_ = std::move(records);
    Q_EMIT chosenChanged();
}

void ShownRecords::setCurrent(int record)
{
    if (record == current_ || record < 0 || record >= records().size())
        return;
    current_ = record;
    Q_EMIT currentChanged(record);
}

int ShownRecords::nearestInSight(double time) const
{
    const std::vector<quint32>& times = columns_->times();
    const auto timeOfRecord = [&](int record) { return static_cast<double>(times[record]); };
    const auto first = std::ranges::lower_bound(byTime_, inSight_.from, {}, timeOfRecord);
    const auto end = std::ranges::upper_bound(byTime_, inSight_.to, {}, timeOfRecord);
    if (first >= end)
        return -1;
    const auto behind = std::ranges::lower_bound(first, end, time, {}, timeOfRecord);
    if (behind == first)
        return *behind;
    const int before = *std::prev(behind);
    return behind == end || time - timeOfRecord(before) <= timeOfRecord(*behind) - time ? before : *behind;
}

void ShownRecords::setInSight(const TimeSpan& span)
{
    if (span == inSight_)
        return;
    inSight_ = span;
    Q_EMIT inSightChanged();
}

void ShownRecords::setComputed(std::vector<ComputedColumn> columns)
{
    if (computed_.empty() && columns.empty())
        return;
    computed_ = std::move(columns);
    Q_EMIT computedChanged();
}

void ShownRecords::setFound(std::vector<FoundEvent> events)
{
    if (found_ == events)
        return;
    found_ = std::move(events);
    Q_EMIT foundChanged();
}

} // namespace vlk
