#include "telemetry/track/track_path.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace vlk {

namespace {

constexpr double kMetresPerDegree = 40'007'863.0 / 360;
constexpr double kNarrowestDegree = 0.01; // of one at the equator, so that the poles have a width
constexpr double kLevels[] = {0, 2, 8, 32, 128, 512, 2048, 8192, 32768};

double within180(double degrees)
{
    return std::remainder(degrees, 360);
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

void TrackPath::add(const std::vector<TrackPoint>& points)
{
    if (points.empty())
        return;
    if (points_.empty()) {
        const auto [south, north] = std::ranges::minmax(points, {}, &TrackPoint::latitude);
        middleLatitude_ = (south.latitude + north.latitude) / 2;
        middleLongitude_ = points.front().longitude;
        lastLongitude_ = middleLongitude_;
        metresPerDegreeEast_ =
            kMetresPerDegree * std::max(std::cos(qDegreesToRadians(middleLatitude_)), kNarrowestDegree);
        for (const double apart : kLevels)
            levels_.push_back({apart, {}, {}});
    }
    for (const TrackPoint& point : points) {
        const auto index = static_cast<int>(points_.size());
        lastLongitude_ += within180(point.longitude - lastLongitude_);
        points_.push_back(point);
        places_.emplace_back((lastLongitude_ - middleLongitude_) * metresPerDegreeEast_,
                             (middleLatitude_ - point.latitude) * kMetresPerDegree);
        for (Level& level : levels_)
            addTo(level, index);
    }
}

void TrackPath::addTo(Level& level, int point)
{
    const bool isFirst = level.kept.empty();
    if (!isFirst && !points_[point].startsSegment) {
        const QPointF way = places_[point] - places_[level.kept.back()];
        if (QPointF::dotProduct(way, way) < level.apart * level.apart)
            return;
    }
    const bool startsChunk = level.kept.size() % Level::kChunk == 0;
    if (startsChunk) {
        level.of.emplace_back();
        unite(level.of.back(), places_[isFirst ? point : level.kept.back()], true);
    }
    unite(level.of.back(), places_[point], false);
    level.kept.push_back(point);
}

TrackPoint TrackPath::at(const QPointF& place) const
{
    const double longitude = middleLongitude_ + place.x() / std::max(metresPerDegreeEast_, 1.0);
    return {-1, 0, std::clamp(middleLatitude_ - place.y() / kMetresPerDegree, -90.0, 90.0),
            within180(longitude), false};
}

int TrackPath::pointOf(int record) const
{
    const auto behind = std::ranges::upper_bound(points_, record, {}, &TrackPoint::record);
    return static_cast<int>(behind - points_.begin()) - 1;
}

const TrackPath::Level& TrackPath::levelFor(double metresPerPixel) const
{
    const auto coarser = std::ranges::upper_bound(levels_, metresPerPixel, {}, &Level::apart);
    return *std::prev(coarser);
}

} // namespace vlk
