#include "telemetry/curves/curves_model.h"

#include "base/translated.h"
#include "telemetry/curves/time_scale.h"
#include "telemetry/files/rare_events.h"
#include "telemetry/files/raw_values.h"
#include "telemetry/files/stops.h"
#include "telemetry/files/vehicle_times.h"
#include "telemetry/shown/absent_value.h"

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

int bitOf(const Item& item)
{
    return item.rule().bits.count == 0 ? item.bit : item.rule().bits.first;
}

std::shared_ptr<const StateRuns> stopRuns(ShownRecords& records)
{
    const std::vector<quint32>& times = records.columns().times();
    const auto runs = std::make_shared<StateRuns>();
    for (const Stop& stop : stopsOf(records.columns(), records.byTime()))
        runs->on.push_back({times[stop.first], times[stop.last]});
    return runs;
}

} // namespace

CurvesModel::CurvesModel(ShownRecords* records, QObject* parent) : QObject(parent), records_(records)
{
    connect(records, &ShownRecords::contentsChanged, this, &CurvesModel::restart);
    connect(records, &ShownRecords::recordsAdded, this, &CurvesModel::grow);
    connect(records, &ShownRecords::computedChanged, this, [this] {
        std::erase_if(series_, [this](const auto& entry) {
            return std::ranges::find(records_->computed(), entry.first, &ComputedColumn::name) !=
                   records_->computed().end();
        });
        rebuild();
    });
    const auto remark = [this] {
        makeMarks();
        Q_EMIT changed();
    };
    connect(records, &ShownRecords::passingChanged, this, remark);
    connect(records, &ShownRecords::foundChanged, this, remark);
    connect(records, &ShownRecords::currentChanged, this, [this](int record) {
        cursors_[static_cast<std::size_t>(moving_)] = record;
        Q_EMIT cursorsChanged();
    });
    restart();
}

void CurvesModel::restart()
{
    series_.clear();
    curves_.clear();
    axes_.clear();
    bands_.clear();
    marks_.clear();
    runs_.clear();
    changingBits_.clear();
    stops_.reset();
    events_.clear();
    focused_ = -1;
    chosenName_.clear();
    cursors_ = {records_->current(), -1};
    moving_ = Cursor::A;
    Q_EMIT changed();
    records_->later([this] { records_->columns().numbers(item("Speed")); });
    records_->later([this] { findStops(); });
    records_->later([this] { records_->columns().codes(); });
    records_->later([this] { findIgnition(); });
    records_->later([this] { findEvents(); });
}

void CurvesModel::findStops()
{
    stops_ = stopRuns(*records_);
}

void CurvesModel::findIgnition()
{
    ignition_ = ignitionState(records_->columns(), records_->byTime());
}

void CurvesModel::findEvents()
{
    events_ = rareEvents(records_->columns(), records_->byTime());
}

void CurvesModel::grow(int first)
{
    const std::vector<int>& byTime = records_->byTime();
    const auto added = static_cast<std::size_t>(records_->records().size() - first);
    const bool isLatest =
        byTime.size() >= added && std::ranges::all_of(byTime.end() - static_cast<int>(added), byTime.end(),
                                                      [&](int record) { return record >= first; });
    // What is not shown, or gets numbers in between, is made anew when it is asked for.
    std::erase_if(series_, [&](const auto& entry) {
        return !isLatest || std::ranges::none_of(curves_, [&](const Curve& curve) {
            return curve.column.name == entry.first;
        });
    });
    for (const Curve& curve : curves_) {
        if (isLatest)
            addTo(*curve.series, curve.column, std::span(byTime).last(added));
    }
    runs_.clear();
    changingBits_.clear();
    findStops();
    findIgnition();
    findEvents();
    rebuild();
}

void CurvesModel::show(const QStringList& items, Choice choice)
{
    items_ = items;
    choice_ = choice;
    chosenName_.clear();
    isBeingMade_ = false;
    rebuild();
}

// What takes a while of it is there when it is shown, unless others were asked for meanwhile.
void CurvesModel::showLater(const QStringList& items, Choice choice)
{
    isBeingMade_ = true;
    int curves = 0;
    for (const CurveColumn& column : curveColumns(*records_)) {
        if (!column.item || !items.contains(column.name) || ++curves > kMostCurves)
            continue;
        records_->later([this, column] { numbersOf(*records_, column); });
        records_->later([this, column] { seriesOf(column); });
    }
    for (const CurveColumn& state : stateColumns(*records_)) {
        if (!items.contains(state.name))
            continue;
        records_->later([this, state, choice] {
            if (choice == Choice::Chosen || changes(state))
                runsOf(*state.item);
        });
    }
    records_->later([this, items, choice] {
        if (isBeingMade_)
            show(items, choice);
        else
            rebuild();
    });
}

QStringList CurvesModel::shownNames() const
{
    QStringList names;
    for (const Curve& curve : curves_)
        names << curve.column.name;
    for (const Band& band : bands_) {
        if (!band.name.isEmpty())
            names << band.name;
    }
    return names;
}

void CurvesModel::rebuild()
{
    curves_.clear();
    axes_.clear();
    bands_.clear();
    const std::vector<CurveColumn> columns = curveColumns(*records_);
    const std::vector<CurveColumn> states = stateColumns(*records_);
    for (const QString& name : std::as_const(items_)) {
        for (const CurveColumn& column : columns) {
            if (column.name == name || (column.computed >= 0 && name == QLatin1String("*")))
                addCurve(column);
        }
        const auto state = std::ranges::find(states, name, &CurveColumn::name);
        if (state != states.end())
            addBand(*state);
    }
    // Those that there is no room for are left out from the end: last of all the ignition, or the engine
    // where no input tells it, and before it the stops.
    const ItemIndex engine = item("Module1.7");
    for (const ItemIndex state : {engine, ignition_.value_or(engine)}) {
        const auto band = std::ranges::find(bands_, itemName(state), &Band::name);
        if (band != bands_.end())
            std::rotate(bands_.begin(), band, band + 1);
    }
    if (stops_ && !stops_->on.empty())
        bands_.insert(bands_.begin() + std::min<std::ptrdiff_t>(1, std::ssize(bands_)),
                      {QString(), translated("rec_165"), stops_});
    makeMarks();
    // Others may have come in front of it.
    const auto chosen = std::ranges::find_if(
        curves_, [this](const Curve& curve) { return curve.column.name == chosenName_; });
    focused_ = curves_.empty()           ? -1
               : chosen == curves_.end() ? 0
                                         : static_cast<int>(chosen - curves_.begin());
    Q_EMIT changed();
}

void CurvesModel::addCurve(CurveColumn column)
{
    const bool isThere =
        std::ranges::any_of(curves_, [&](const Curve& curve) { return curve.column.name == column.name; });
    if (isThere || static_cast<int>(curves_.size()) == kMostCurves)
        return;
    const auto sharesAxis = [&](const Curve& curve) { return curve.column.axis == column.axis; };
    const auto like = std::ranges::find_if(curves_, sharesAxis);
    if (like == curves_.end() && axes_.size() == kMostAxes)
        return;
    std::shared_ptr<CurveSeries> series = seriesOf(column);
    if (choice_ == Choice::Offered && !series->hasValues())
        return;
    int axis = axes_.size();
    if (like != curves_.end())
        axis = like->axis;
    if (like != curves_.end() && column.unit.isEmpty())
        axes_[axis] += QLatin1String(", ") + furtherTitle(like->column.title, column.title);
    else if (like == curves_.end())
        axes_ << (column.unit.isEmpty() ? column.title : column.unit);
    curves_.push_back({std::move(column), std::move(series), axis});
}

bool CurvesModel::changes(const CurveColumn& state)
{
    const Item& item = kItems[*state.item];
    const auto [place, isNew] = changingBits_.try_emplace(item.element);
    if (isNew) {
        std::uint64_t anywhere = 0;
        std::uint64_t everywhere = ~anywhere;
        forEachRaw(
            records_->records(), item.element,
            [&](const RecordLayout& layout) { return layout.has(item.element); },
            [&](int, std::optional<std::uint64_t> raw) {
                anywhere |= raw.value_or(0);
                everywhere &= raw.value_or(~std::uint64_t{0});
            });
        place->second = anywhere & ~everywhere;
    }
    return (place->second >> bitOf(item) & 1) != 0;
}

void CurvesModel::addBand(const CurveColumn& column)
{
    if (static_cast<int>(bands_.size()) == kMostBands)
        return;
    if (choice_ == Choice::Chosen || changes(column))
        bands_.push_back({column.name, column.title, runsOf(*column.item)});
}

std::shared_ptr<const StateRuns> CurvesModel::runsOf(ItemIndex state)
{
    std::shared_ptr<const StateRuns>& runs = runs_[state];
    if (!runs) {
        const int bit = bitOf(kItems[state]);
        const RawValues values(records_->records(), kItems[state].element);
        runs =
            std::make_shared<StateRuns>(records_->byTime(), RecordGaps(records_->columns()), [&](int record) {
                const std::optional<std::uint64_t> raw = values.at(record);
                return raw ? static_cast<int>(*raw >> bit & 1) : -1;
            });
    }
    return runs;
}

void CurvesModel::makeMarks()
{
    marks_.clear();
    std::vector<int> events = events_;
    for (const FoundEvent& event : records_->found())
        events.push_back(event.record);
    const std::vector<quint32>& times = records_->columns().times();
    const auto moment = [&](int record) { return std::pair(times[record], record); };
    // There may be a million of the others, which are in their order.
    const auto found = events.begin() + static_cast<std::ptrdiff_t>(events_.size());
    std::ranges::sort(found, events.end(), {}, moment);
    std::ranges::inplace_merge(events.begin(), found, events.end(), {}, moment);
    events.erase(std::unique(events.begin(), events.end()), events.end());
    if (!events.empty())
        marks_.push_back({translated("rec_166"), std::move(events)});
    const bool isFiltered = static_cast<int>(records_->passing().size()) < records_->records().size();
    if (!isFiltered)
        return;
    const std::vector<int>& passing = records_->passing();
    std::vector<int> hits;
    std::ranges::copy_if(records_->byTime(), std::back_inserter(hits),
                         [&](int record) { return std::ranges::binary_search(passing, record); });
    marks_.push_back({translated("rec_167"), std::move(hits)});
}

std::shared_ptr<CurveSeries> CurvesModel::seriesOf(const CurveColumn& column)
{
    std::shared_ptr<CurveSeries>& series = series_[column.name];
    if (!series) {
        series = std::make_shared<CurveSeries>();
        addTo(*series, column, records_->byTime());
    }
    return series;
}

void CurvesModel::addTo(CurveSeries& series, const CurveColumn& column, std::span<const int> byTime) const
{
    const RecordStore& store = records_->records();
    const NumberColumn& numbers = numbersOf(*records_, column);
    std::vector<bool> holding;
    for (const RecordLayout& layout : store.layouts())
        holding.push_back(column.item ? layout.has(kItems[*column.item].element) : !layout.isPacket());
    series.add(byTime, RecordGaps(records_->columns()), numbers, [&](int record) {
        return holding[store.layoutNumber(record)] && record < static_cast<int>(numbers.size());
    });
}

Extremes CurvesModel::extremesAt(int axis, const TimeSpan& span) const
{
    Extremes extremes;
    for (const Curve& curve : curves_) {
        if (curve.axis == axis)
            extremes.add(curve.series->extremesIn(span));
    }
    return extremes;
}

double CurvesModel::valueAt(const Curve& curve, int record) const
{
    return numberOf(*records_, curve.column, record);
}

void CurvesModel::setFocused(int curve)
{
    if (curve < 0 || curve >= static_cast<int>(curves_.size()) || curve == focused_)
        return;
    focused_ = curve;
    chosenName_ = curves_[curve].column.name;
    Q_EMIT cursorsChanged();
}

void CurvesModel::setMoving(Cursor which)
{
    moving_ = which;
    if (int& record = cursors_[static_cast<std::size_t>(which)]; record < 0)
        record = records_->current();
    records_->setCurrent(cursor(which));
    Q_EMIT cursorsChanged();
}

bool CurvesModel::endCursor(Cursor which)
{
    if (cursor(which) < 0)
        return false;
    const Cursor other = which == Cursor::A ? Cursor::B : Cursor::A;
    cursors_[static_cast<std::size_t>(which)] = -1;
    moving_ = cursor(other) >= 0 ? other : Cursor::A;
    // The other one stays where it is, and is again what is looked at.
    records_->setCurrent(cursor(moving_));
    Q_EMIT cursorsChanged();
    return true;
}

QString CurvesModel::cursorText(Cursor which) const
{
    const std::vector<quint32>& times = records_->columns().times();
    const int record = cursor(which);
    QString moment(kAbsentMark);
    if (times[record] != 0 && which == Cursor::B && cursor(Cursor::A) >= 0)
        moment = momentText(times[record], times[cursor(Cursor::A)], records_->utcOffset());
    else if (times[record] != 0)
        moment = momentText(times[record], records_->utcOffset());
    QString text = QLatin1String(which == Cursor::A ? "A " : "B ") + moment;
    if (focused_ >= 0)
        text += QLatin1Char(' ') + valueText(curves_[focused_].column, valueAt(curves_[focused_], record));
    return text;
}

QString CurvesModel::cursorLine() const
{
    const int a = cursor(Cursor::A);
    const int b = cursor(Cursor::B);
    if (a < 0 || b < 0)
        return a >= 0 ? cursorText(Cursor::A) : b >= 0 ? cursorText(Cursor::B) : QString();
    QString line = cursorText(Cursor::A);
    const std::vector<quint32>& times = records_->columns().times();
    line += QLatin1String(" | ") + cursorText(Cursor::B);
    QStringList differences;
    if (times[a] != 0 && times[b] != 0)
        differences << durationText(static_cast<double>(times[b]) - times[a]);
    if (focused_ >= 0) {
        const Curve& curve = curves_[focused_];
        differences << valueText(curve.column, valueAt(curve, b) - valueAt(curve, a), true);
    }
    return line + QLatin1String(" | ") + differences.join(QLatin1Char(' '));
}

void CurvesModel::retranslate()
{
    rebuild();
    Q_EMIT cursorsChanged();
}

} // namespace vlk
