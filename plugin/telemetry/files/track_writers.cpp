#include "telemetry/files/track_writers.h"

#include "telemetry/files/json_text.h"
#include "telemetry/files/track_writer.h"

#include <cmath>

namespace vlk {

namespace {

class GpxWriter : public TrackWriter
{
public:
    using TrackWriter::TrackWriter;

    void begin(OutputBuffer& out) override
    {
        out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<gpx version=\"1.1\" creator=\"r7106\" xmlns=\"http://www.topografix.com/GPX/1/1\" "
               "xmlns:x=\"http://www.garmin.com/xmlschemas/TrackPointExtension/v2\">\n<trk><name>"
            << xmlEscaped(title()) << "</name>\n";
    }

    void finish(OutputBuffer& out) override { out << (isOpen_ ? "</trkseg>\n" : "") << "</trk>\n</gpx>\n"; }

protected:
    void addStep(OutputBuffer& out, const TrackStep& step) override
    {
        constexpr double secondsOfHour = 3.6; // thousand of them
        if (step.point.startsSegment)
            out << (isOpen_ ? "</trkseg>\n<trkseg>\n" : "<trkseg>\n");
        isOpen_ = true;
        out << "<trkpt lat=\"" << degrees(step.point.latitude) << "\" lon=\"" << degrees(step.point.longitude)
            << "\">";
        if (!std::isnan(step.altitude))
            out << "<ele>" << fixed(step.altitude, 1) << "</ele>";
        out << "<time>" << time(step.point.time) << "</time>";
        if (!std::isnan(step.satellites))
            out << "<sat>" << fixed(step.satellites, 0) << "</sat>";
        const bool hasSpeed = std::isfinite(step.speed);
        const bool hasCourse = !std::isnan(step.course);
        if (hasSpeed || hasCourse)
            out << "<extensions><x:TrackPointExtension>";
        if (hasSpeed)
            out << "<x:speed>" << fixed(step.speed / secondsOfHour, 2) << "</x:speed>";
        if (hasCourse)
            out << "<x:course>" << fixed(step.course, 0) << "</x:course>";
        if (hasSpeed || hasCourse)
            out << "</x:TrackPointExtension></extensions>";
        out << "</trkpt>\n";
    }

private:
    bool isOpen_ = false; // a segment
};

// A segment is a track of several, each of as many points as are kept until its times stand in front of its
// coordinates.
class KmlWriter : public TrackWriter
{
public:
    using TrackWriter::TrackWriter;

    void begin(OutputBuffer& out) override
    {
        out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<kml xmlns=\"http://www.opengis.net/kml/2.3\" version=\"2.3\">\n<Document><name>"
            << xmlEscaped(title()) << "</name>\n";
    }

    void finish(OutputBuffer& out) override
    {
        endSegment(out);
        out << "</Document>\n</kml>\n";
    }

protected:
    void addStep(OutputBuffer& out, const TrackStep& step) override
    {
        constexpr int most = 5000;
        if (step.point.startsSegment) {
            endSegment(out);
            out << "<Placemark><name>" << time(step.point.time)
                << "</name><MultiTrack><interpolate>1</interpolate>\n";
            isOpen_ = true;
        } else if (points_ >= most) {
            endTrack(out);
        }
        times_ += "<when>";
        times_ += time(step.point.time);
        times_ += "</when>\n";
        places_ += "<coord>" + degrees(step.point.longitude).toStdString() + ' ' +
                   degrees(step.point.latitude).toStdString();
        if (!std::isnan(step.altitude))
            places_ += ' ' + fixed(step.altitude, 1).toStdString();
        places_ += "</coord>\n";
        ++points_;
    }

private:
    void endTrack(OutputBuffer& out)
    {
        out << "<Track>\n" << times_ << places_ << "</Track>\n";
        times_.clear();
        places_.clear();
        points_ = 0;
    }

    void endSegment(OutputBuffer& out)
    {
        if (!std::exchange(isOpen_, false))
            return;
        endTrack(out);
        out << "</MultiTrack></Placemark>\n";
    }

    bool isOpen_ = false; // a segment
    int points_ = 0;
    std::string times_;
    std::string places_;
};

class GeoJsonWriter : public TrackWriter
{
public:
    using TrackWriter::TrackWriter;

    void begin(OutputBuffer& out) override { out << R"({"type":"FeatureCollection","features":[)"; }

    void finish(OutputBuffer& out) override
    {
        endSegment(out);
        out << "]}\n";
    }

protected:
    void addStep(OutputBuffer& out, const TrackStep& step) override
    {
        if (step.point.startsSegment) {
            endSegment(out);
        } else if (const double across = step.point.longitude - last_.point.longitude;
                   std::abs(across) > 180) {
            const TrackStep end = atDateLine(step, across < 0 ? 180 : -180);
            addPosition(out, end);
            endSegment(out);
            TrackStep begin = end;
            begin.point.longitude = -end.point.longitude;
            addPosition(out, begin);
        }
        addPosition(out, step);
    }

private:
    // On the way from the last point, on its side.
    TrackStep atDateLine(const TrackStep& step, double longitude) const
    {
        const double whole = 360 - std::abs(step.point.longitude - last_.point.longitude);
        const double share = whole == 0 ? 0 : std::abs(longitude - last_.point.longitude) / whole;
        TrackStep there = last_;
        there.point.longitude = longitude;
        there.point.latitude += (step.point.latitude - last_.point.latitude) * share;
        there.altitude += (step.altitude - last_.altitude) * share;
        const double seconds = (static_cast<double>(step.point.time) - last_.point.time) * share;
        there.point.time = static_cast<quint32>(last_.point.time + std::llround(seconds));
        return there;
    }

    // A line needs two positions, so that the first waits for the second.
    void addPosition(OutputBuffer& out, const TrackStep& step)
    {
        if (points_ == 0) {
            first_ = step;
        } else {
            if (points_ == 1)
                beginFeature(out, "LineString", "[" + position(first_));
            out << ",\n" << position(step);
        }
        last_ = step;
        ++points_;
    }

    void beginFeature(OutputBuffer& out, const char* type, const QByteArray& coordinates)
    {
        out << (std::exchange(isFirst_, false) ? "\n" : ",\n") << R"({"type":"Feature","geometry":{"type":")"
            << type << R"(","coordinates":)" << coordinates;
    }

    void endSegment(OutputBuffer& out)
    {
        if (points_ == 0)
            return;
        if (points_ == 1)
            beginFeature(out, "Point", position(first_));
        out << (points_ > 1 ? "]" : "") << R"(},"properties":{"name":")" << jsonEscaped(title())
            << R"(","from":")" << time(first_.point.time) << R"(","to":")";
        out << time(last_.point.time) << R"("}})";
        points_ = 0;
    }

    static QByteArray position(const TrackStep& step)
    {
        QByteArray text = '[' + degrees(step.point.longitude) + ',' + degrees(step.point.latitude);
        if (!std::isnan(step.altitude))
            text += ',' + fixed(step.altitude, 1);
        return text + ']';
    }

    bool isFirst_ = true; // of the features
    qint64 points_ = 0;   // of the segment
    TrackStep first_{};
    TrackStep last_{};
};

} // namespace

std::unique_ptr<ExportWriter> gpxWriter(const ExportOptions& options)
{
    return std::make_unique<GpxWriter>(options);
}

std::unique_ptr<ExportWriter> kmlWriter(const ExportOptions& options)
{
    return std::make_unique<KmlWriter>(options);
}

std::unique_ptr<ExportWriter> geoJsonWriter(const ExportOptions& options)
{
    return std::make_unique<GeoJsonWriter>(options);
}

} // namespace vlk
