#include "telemetry/view/shown_records.h"

#include "base/clock.h"
#include "telemetry/files/title_lines.h"

#include <algorithm>
#include <numeric>

namespace vlk {

void ShownRecords::setContents(TelemetryContents contents)
{
    contents_ = std::move(contents);
    columns_ = std::make_unique<RecordColumns>(contents_.records,
                                               typeLetters(contents_.origin.titles).toLatin1().toStdString());
    const std::vector<quint32>& times = columns_->times();
    passing_.resize(times.size());
    std::iota(passing_.begin(), passing_.end(), 0);
    byTime_.clear();
    std::ranges::copy_if(passing_, std::back_inserter(byTime_),
                         [&](int record) { return times[record] != 0; });
    std::ranges::stable_sort(byTime_, {}, [&](int record) { return times[record]; });
    wholeTime_ = byTime_.empty() ? TimeSpan()
                                 : TimeSpan{double(times[byTime_.front()]), double(times[byTime_.back()])};
    inSight_ = wholeTime_;
    current_ = times.empty() ? -1 : 0;
    Q_EMIT contentsChanged();
}

qint32 ShownRecords::utcOffset() const
{
    return contents_.records.utcOffset().value_or(localOffset());
}

void ShownRecords::setPassing(std::vector<int> records)
{
    if (passing_ == records)
        return;
    passing_ = std::move(records);
    Q_EMIT passingChanged();
}

void ShownRecords::setCurrent(int record)
{
    if (record == current_ || record < 0 || record >= records().size())
        return;
    current_ = record;
    Q_EMIT currentChanged(record);
}

int ShownRecords::nearestTo(double time) const
{
    if (byTime_.empty())
        return current_;
    const std::vector<quint32>& times = columns_->times();
    const auto timeOfRecord = [&](int record) { return double(times[record]); };
    const auto behind = std::ranges::lower_bound(byTime_, time, {}, timeOfRecord);
    if (behind == byTime_.begin())
        return *behind;
    const int before = *std::prev(behind);
    return behind == byTime_.end() || time - timeOfRecord(before) <= timeOfRecord(*behind) - time ? before
                                                                                                  : *behind;
}

void ShownRecords::setInSight(const TimeSpan& span)
{
    if (span == inSight_)
        return;
    inSight_ = span;
    Q_EMIT inSightChanged();
}

} // namespace vlk
