#include "telemetry/track/track_model.h"

#include "telemetry/curves/extreme_pyramid.h"
#include "telemetry/files/rare_events.h"

#include <algorithm>
#include <limits>

namespace vlk {

TrackModel::TrackModel(ShownRecords* records, QObject* parent) : QObject(parent), records_(records)
{
    connect(records, &ShownRecords::contentsChanged, this, &TrackModel::restart);
    connect(records, &ShownRecords::recordsAdded, this, &TrackModel::grow);
    connect(records, &ShownRecords::foundChanged, this, &TrackModel::changed);
    // What was computed anew may stand at another place, or be gone.
    connect(records, &ShownRecords::computedChanged, this, [this] {
        chooseColumn();
        classify();
        Q_EMIT changed();
    });
    connect(records, &ShownRecords::inSightChanged, this, [this] {
        if (isSpanOnly_)
            Q_EMIT changed();
    });
    restart();
}

void TrackModel::restart()
{
    path_ = TrackPath();
    isBeingMade_ = true;
    stops_.clear();
    events_.clear();
    chooseColumn();
    Q_EMIT restarted();
    const auto path = std::make_shared<TrackPath>();
    for (auto& step : path->stepsToAdd(records_->columns()))
        records_->later(std::move(step));
    records_->later([this] { findStops(); });
    records_->later([this] { findEvents(); });
    // The first distance waits for PROJ to be loaded, which the first drawing is not to do.
    records_->later([path] {
        if (!path->isEmpty())
            metresBetween({}, {});
    });
    records_->later([this, path] {
        path_ = std::move(*path);
        isBeingMade_ = false;
        classify();
        Q_EMIT restarted();
    });
}

void TrackModel::grow(int first)
{
    const bool wasEmpty = path_.isEmpty();
    path_.add(records_->columns(), first);
    describe();
    if (wasEmpty)
        Q_EMIT restarted();
    else
        Q_EMIT changed();
}

void TrackModel::describe()
{
    chooseColumn();
    findStops();
    findEvents();
    classify();
}

void TrackModel::chooseColumn()
{
    const QString wanted = column_ ? column_->name : itemName(item("Speed"));
    const std::vector<CurveColumn> columns = curveColumns(*records_);
    const auto found = std::ranges::find(columns, wanted, &CurveColumn::name);
    column_ = found != columns.end() ? std::optional(*found) : std::nullopt;
}

void TrackModel::findStops()
{
    stops_ = stopsOf(records_->columns(), records_->byTime());
}

void TrackModel::findEvents()
{
    events_ = rareEvents(records_->columns(), records_->byTime());
    // Mostly they are.
    if (!std::ranges::is_sorted(events_))
        std::ranges::sort(events_);
}

void TrackModel::classify()
{
    Extremes extremes;
    if (const NumberColumn* const numbers = values()) {
        for (const int record : path_.records()) {
            if (record < static_cast<int>(numbers->size()))
                extremes.add((*numbers)[record]);
        }
    }
    classes_ = extremes.isEmpty() ? ValueClasses() : ValueClasses(extremes.least, extremes.greatest);
}

void TrackModel::setColumn(const std::optional<CurveColumn>& column)
{
    column_ = column;
    classify();
    Q_EMIT changed();
}

const NumberColumn* TrackModel::values() const
{
    return column_ ? &numbersOf(*records_, *column_) : nullptr;
}

double TrackModel::valueAt(int record) const
{
    return column_ ? numberOf(*records_, *column_, record) : std::numeric_limits<double>::quiet_NaN();
}

void TrackModel::setSpanOnly(bool only)
{
    isSpanOnly_ = only;
    Q_EMIT changed();
}

TimeSpan TrackModel::shownTime() const
{
    constexpr double endless = std::numeric_limits<double>::infinity();
    return isSpanOnly_ ? records_->inSight() : TimeSpan{-endless, endless};
}

QRectF TrackModel::bounds() const
{
    const TimeSpan shown = shownTime();
    QRectF bounds;
    bool isFirst = true;
    for (int point = 0; point < static_cast<int>(path_.points().size()); ++point) {
        if (!shown.contains(path_.time(point)))
            continue;
        unite(bounds, path_.place(point), std::exchange(isFirst, false));
    }
    return bounds;
}

} // namespace vlk
