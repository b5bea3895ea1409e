#pragma once

// The points of a track on a plane, in metres east and south of its middle, and thinned out in levels so that
// a drawing costs what its pixels need. North is up; the date line is no seam. A point takes some thirty
// bytes.

#include "telemetry/files/track_points.h"

#include <QRectF>

#include <functional>

namespace vlk {

// Makes a rectangle hold a point; of the first one it is nothing but that.
void unite(QRectF& rect, const QPointF& point, bool isFirst);

class TrackPath
{
public:
    // The points of the records from that one on, which come after those it has.
    void add(RecordColumns& columns, int firstRecord = 0);
    // For a path without points: adds them in steps, to be called in their order; it is to be used behind
    // the last one.
    std::vector<std::function<void()>> stepsToAdd(RecordColumns& columns, int firstRecord = 0);

    // Made when they are asked for.
    class Points
    {
    public:
        explicit Points(const TrackPath& path) : path_(path) {}
        std::size_t size() const { return path_.records_.size(); }
        TrackPoint operator[](std::size_t point) const { return path_.pointAt(static_cast<int>(point)); }

    private:
        const TrackPath& path_;
    };

    bool isEmpty() const { return records_.empty(); }
    Points points() const { return Points(*this); }
    // The record of each point, rising.
    const std::vector<int>& records() const { return records_; }
    quint32 time(int point) const { return times_[point]; }
    bool startsSegment(int point) const { return startsSegment_[point]; }
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
    TrackPoint pointAt(int point) const;
    void reserve(int records);
    void take(RecordColumns& columns, int firstRecord, int behindRecord);
    void setMiddle();
    void toMetres(int firstPoint);
    void addTo(Level& level, int firstPoint) const;
    void startLevels();
    void makeLevels();
    void makeLevel(double apart);

    std::vector<int> records_;
    std::vector<quint32> times_;
    std::vector<bool> startsSegment_;
    std::vector<QPointF> places_;
    std::vector<Level> levels_;
    std::size_t levelsMadeOf_ = 0; // points; made anew when there are twice as many
    double middleLatitude_ = 0;
    double middleLongitude_ = 0;
    double lastLongitude_ = 0; // beyond 180 where the track crossed the date line
    double metresPerDegreeEast_ = 0;
};

} // namespace vlk
