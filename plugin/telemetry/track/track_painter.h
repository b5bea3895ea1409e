#pragma once

// Draws a track: the path in the colours of its values, stops and events, the record that is looked at, the
// legend, the bar of the scale, north.

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class QPainter;
class QPalette;

namespace vlk {

class TrackModel;
struct TimeSpan;

// What part of the plane is seen, at what scale.
struct TrackSight
{
    QPointF middle;
    double metresPerPixel = 1;

    QPointF toPixel(const QPointF& place, const QSizeF& size) const
    {
        return (place - middle) / metresPerPixel + QPointF(size.width() / 2, size.height() / 2);
    }
    QPointF toPlace(const QPointF& pixel, const QSizeF& size) const
    {
        return (pixel - QPointF(size.width() / 2, size.height() / 2)) * metresPerPixel + middle;
    }
    bool operator==(const TrackSight&) const = default;
};

// All of the bounds, with a margin; of a vehicle that never moved its surroundings.
TrackSight sightOf(const QRectF& bounds, const QSizeF& size);

// The part of the track in that time, and behind it, thin and pale, that of a wider one.
void paintTrack(QPainter& painter, const QSizeF& size, const TrackModel& model, const TrackSight& sight,
                const TimeSpan& span, const TimeSpan& around, const QPalette& palette);

} // namespace vlk
