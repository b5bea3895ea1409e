#include "telemetry/files/track_writer.h"

namespace vlk {

void TrackWriter::add(OutputBuffer& out, const RecordStore& store, std::span<const int> records)
{
    // The columns of these records alone.
    RecordStore part;
    for (const int record : records)
        part.add(store.layout(record), store.bytes(record));
    RecordColumns columns(part);
    const NumberColumn& altitudes = columns.numbers(element("Altitude"));
    const double unitsOfMetre = kElements[element("Altitude")].measure.divisor;
    const NumberColumn& speeds = columns.numbers(item("Speed"));
    const NumberColumn& courses = columns.numbers(item("Course"));
    const NumberColumn& satellites = columns.numbers(item("StateNGauge.satellites"));
    const std::vector<TrackPoint> points = trackPoints(columns, 0, last_ ? &*last_ : nullptr);
    withoutPlace_ += std::ssize(records) - std::ssize(points);
    for (const TrackPoint& point : points) {
        last_ = point;
        const int i = point.record;
        addStep(out, {point, altitudes[i] / unitsOfMetre, speeds[i], courses[i], satellites[i]});
    }
}

std::string_view TrackWriter::time(quint32 seconds)
{
    const char* const end = times_.putUtc(time_.data(), seconds);
    return {time_.data(), static_cast<std::size_t>(end - time_.data())};
}

QByteArray xmlEscaped(const QString& text)
{
    QString plain;
    for (const QChar sign : text) {
        const ushort code = sign.unicode();
        if (code >= 0x20 ? code < 0xFFFE : code == '\t' || code == '\n' || code == '\r')
            plain += sign;
    }
    return plain.toHtmlEscaped().toUtf8();
}

} // namespace vlk
