#pragma once

// What the writers of tracks share: from records to points, one by one, and how a number is spelled.

#include "telemetry/files/export_form.h"
#include "telemetry/files/iso_times.h"
#include "telemetry/files/track_points.h"

namespace vlk {

// A point with what else its record tells; NaN where it tells nothing.
struct TrackStep
{
    TrackPoint point;
    double altitude;   // metres
    double speed;      // km/h
    double course;     // degrees
    double satellites; // how many
};

class TrackWriter : public ExportWriter
{
public:
    explicit TrackWriter(const ExportOptions& options) : title_(options.title) {}

    void add(OutputBuffer& out, const RecordStore& store, std::span<const int> records) override;
    bool hasContent() const override { return last_.has_value(); }
    qint64 withoutPlace() const override { return withoutPlace_; }

protected:
    virtual void addStep(OutputBuffer& out, const TrackStep& step) = 0;

    const QString& title() const { return title_; }
    // "2026-11-20T05:29:44Z"; valid until the next one.
    std::string_view time(quint32 seconds);
    static QByteArray fixed(double number, int decimals) { return QByteArray::number(number, 'f', decimals); }
    static QByteArray degrees(double number) { return fixed(number, 7); }

private:
    QString title_;
    IsoTimes times_{0};
    std::array<char, IsoTimes::kLongest> time_{};
    std::optional<TrackPoint> last_;
    qint64 withoutPlace_ = 0;
};

// The text as it stands between two tags, or in an attribute; what XML cannot hold is left out.
QByteArray xmlEscaped(const QString& text);

} // namespace vlk
