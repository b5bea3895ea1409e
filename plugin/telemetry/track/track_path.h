#pragma once

// The points of a track on a plane, in metres east and south of its middle, and thinned out in levels so that
// a drawing costs what its pixels need. North is up; the date line is no seam.

#include "telemetry/files/track_points.h"

#include <QRectF>

namespace vlk {

// Makes a rectangle hold a point; of the first one it is nothing but that.
void unite(QRectF& rect, const QPointF& point, bool isFirst);

class TrackPath
{
public:
    // Points that come after those it has.
    void add(const std::vector<TrackPoint>& points);

    bool isEmpty() const { return points_.empty(); }
    const std::vector<TrackPoint>& points() const { return points_; }
    const QPointF& place(int point) const { return places_[point]; }
    // The point that is drawn there, as latitude and longitude.
    TrackPoint at(const QPointF& place) const;
    // The last point of this record or before it; -1 before the first.
    int pointOf(int record) const;

    struct Level
    {
        static constexpr int kChunk = 256;

        double apart;           // metres
        std::vector<int> kept;  // the points, among them all that begin a segment
        std::vector<QRectF> of; // where each chunk of them is, the way to its first one included
    };
    // With points no further from what they stand for than a pixel.
    const Level& levelFor(double metresPerPixel) const;

private:
    void addTo(Level& level, int point);

    std::vector<TrackPoint> points_;
    std::vector<QPointF> places_;
    std::vector<Level> levels_;
    double middleLatitude_ = 0;
    double middleLongitude_ = 0;
    double lastLongitude_ = 0; // beyond 180 where the track crossed the date line
    double metresPerDegreeEast_ = 0;
};

} // namespace vlk
