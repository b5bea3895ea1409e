#include "telemetry/track/track_path.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr double kMetresPerDegree = 40'007'863.0 / 360;
constexpr double kNarrowestDegree = 0.01; // of one at the equator, so that the poles have a width
// Metres. Closest where long tracks are seen whole, since most of their points share pixels there.
constexpr double kLevels[] = {0, 2, 8, 32, 128, 512, 1024, 2048, 4096, 8192, 32768};
constexpr int kRecordsInAStep = 100'000;
constexpr double kLeastThinning = 1.5; // times fewer points than the level before

double within180(double degrees)
{
    return std::abs(degrees) <= 180 ? degrees : std::remainder(degrees, 360);
}

} // namespace

void unite(QRectF& rect, const QPointF& point, bool isFirst)
{
    if (isFirst) {
        rect = QRectF(point, point);
        return;
    }
    rect.setCoords(std::min(rect.left(), point.x()), std::min(rect.top(), point.y()),
                   std::max(rect.right(), point.x()), std::max(rect.bottom(), point.y()));
}

void TrackPath::add(RecordColumns& columns, int firstRecord)
{
    const auto before = static_cast<int>(records_.size());
    if (isEmpty()) {
        for (const auto& step : stepsToAdd(columns, firstRecord))
            step();
        return;
    }
    take(columns, firstRecord, columns.store().size());
    toMetres(before);
    if (records_.size() >= 2 * levelsMadeOf_)
        makeLevels();
    else
        for (Level& level : levels_)
            addTo(level, before);
}

void TrackPath::reserve(int records)
{
    const auto most = static_cast<std::size_t>(records);
    records_.reserve(most);
    times_.reserve(most);
    startsSegment_.reserve(most);
    places_.reserve(most);
}

std::vector<std::function<void()>> TrackPath::stepsToAdd(RecordColumns& columns, int firstRecord)
{
    std::vector<std::function<void()>> steps;
    const int size = columns.store().size();
    steps.emplace_back([this, size, firstRecord] { reserve(size - firstRecord); });
    for (int record = firstRecord; record < size; record += kRecordsInAStep)
        steps.emplace_back([this, &columns, record, behind = std::min(record + kRecordsInAStep, size)] {
            take(columns, record, behind);
        });
    steps.emplace_back([this] {
        setMiddle();
        toMetres(0);
        startLevels();
    });
    for (const double apart : kLevels)
        steps.emplace_back([this, apart] { makeLevel(apart); });
    return steps;
}

// Their places are degrees yet.
void TrackPath::take(RecordColumns& columns, int firstRecord, int behindRecord)
{
    const RecordGaps gaps(columns);
    forEachTrackPoint(columns, firstRecord, behindRecord, nullptr, [&](const TrackPoint& point) {
        const bool startsSegment = isEmpty() || gaps.areApart(records_.back(), point.record);
        if (isEmpty())
            lastLongitude_ = point.longitude;
        lastLongitude_ += within180(point.longitude - lastLongitude_);
        records_.push_back(point.record);
        times_.push_back(point.time);
        startsSegment_.push_back(startsSegment);
        places_.emplace_back(lastLongitude_, point.latitude);
    });
}

void TrackPath::toMetres(int firstPoint)
{
    for (auto place = places_.begin() + firstPoint; place != places_.end(); ++place)
        *place = {(place->x() - middleLongitude_) * metresPerDegreeEast_,
                  (middleLatitude_ - place->y()) * kMetresPerDegree};
}

// Takes the middle of the first places, which are degrees yet.
void TrackPath::setMiddle()
{
    if (isEmpty())
        return;
    const auto [south, north] = std::ranges::minmax_element(places_, {}, &QPointF::y);
    middleLatitude_ = (south->y() + north->y()) / 2;
    middleLongitude_ = places_.front().x();
    metresPerDegreeEast_ =
        kMetresPerDegree * std::max(std::cos(qDegreesToRadians(middleLatitude_)), kNarrowestDegree);
}

void TrackPath::startLevels()
{
    levels_.clear();
    levelsMadeOf_ = records_.size();
}

void TrackPath::makeLevels()
{
    startLevels();
    for (const double apart : kLevels)
        makeLevel(apart);
}

// A level that leaves out too little is none: the finer one does.
void TrackPath::makeLevel(double apart)
{
    Level level{apart, {}, {}};
    if (apart == 0)
        level.kept.reserve(records_.size());
    addTo(level, 0);
    if (!levels_.empty() && static_cast<double>(level.kept.size()) * kLeastThinning >
                                static_cast<double>(levels_.back().kept.size()))
        return;
    level.kept.shrink_to_fit();
    level.of.shrink_to_fit();
    levels_.push_back(std::move(level));
}

void TrackPath::addTo(Level& level, int firstPoint) const
{
    for (int point = firstPoint; point < static_cast<int>(records_.size()); ++point) {
        const bool isFirst = level.kept.empty();
        if (!isFirst && !startsSegment_[point]) {
            const QPointF way = places_[point] - places_[level.kept.back()];
            if (QPointF::dotProduct(way, way) < level.apart * level.apart)
                continue;
        }
        const bool startsChunk = level.kept.size() % Level::kChunk == 0;
        if (startsChunk) {
            level.of.emplace_back();
            unite(level.of.back(), places_[isFirst ? point : level.kept.back()], true);
        }
        unite(level.of.back(), places_[point], false);
        level.kept.push_back(point);
    }
}

TrackPoint TrackPath::pointAt(int point) const
{
    TrackPoint made = at(places_[point]);
    made.record = records_[point];
    made.time = times_[point];
    made.startsSegment = startsSegment_[point];
    return made;
}

TrackPoint TrackPath::at(const QPointF& place) const
{
    const double longitude = middleLongitude_ + place.x() / std::max(metresPerDegreeEast_, 1.0);
    return {-1, 0, std::clamp(middleLatitude_ - place.y() / kMetresPerDegree, -90.0, 90.0),
            within180(longitude), false};
}

int TrackPath::pointOf(int record) const
{
    const auto behind = std::ranges::upper_bound(records_, record);
    return static_cast<int>(behind - records_.begin()) - 1;
}

const TrackPath::Level& TrackPath::levelFor(double metresPerPixel) const
{
    const auto coarser = std::ranges::upper_bound(levels_, metresPerPixel, {}, &Level::apart);
    return *std::prev(coarser);
}

} // namespace vlk
