// Where the vehicle was: which records are points, how far they are apart, and the track on show.

#include "support/records.h"
#include "telemetry/files/track_points.h"

#include <QtTest>

using namespace vlk;

namespace {

constexpr quint32 kStart = 1'763'625'600; // 20.11.2025 08:00 UTC

struct Fix
{
    quint32 time;
    double latitude;
    double longitude;
    quint64 state = 2;
    quint32 speed = 0;
};

RecordStore storeOf(const std::vector<Fix>& fixes)
{
    const auto raw = [](double degrees) { return quint64(qint64(std::llround(degrees * 600'000))); };
    RecordStore store;
    for (const Fix& fix : fixes) {
        const RecordParts parts{{"Time", fix.time},
                                {"Latitude", raw(fix.latitude)},
                                {"Longitude", raw(fix.longitude)},
                                {"StateNGauge", fix.state},
                                {"Speed", std::bit_cast<quint32>(float(fix.speed))}};
        store.add(30, parts.mask, parts.block);
    }
    return store;
}

} // namespace

class TestTrack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsThePoints();
    void measuresOnTheEllipsoid();
};

void TestTrack::findsThePoints()
{
    RecordStore store = storeOf({{kStart, 55.5, 37.25},
                                 {kStart + 10, 0, 0},           // no place
                                 {kStart + 20, 55.5, 37.25, 0}, // not valid
                                 {kStart + 30, 91, 37.25},
                                 {kStart + 40, 55.5, -181},
                                 {kStart + 300, 0, 180},
                                 {kStart + 601, -90, -180},
                                 {kStart + 300, 55.5, 0},   // back by a gap
                                 {kStart + 299, 55.5, 0}}); // back by less
    const RecordParts noPlace{{"Time", kStart}};
    store.add(30, noPlace.mask, noPlace.block);
    const RecordParts noState{{"Time", kStart}, {"Latitude", 600'000}, {"Longitude", 0}};
    store.add(30, noState.mask, noState.block);
    RecordColumns columns(store);
    QStringList found;
    for (const TrackPoint& point : trackPoints(columns))
        found << QStringLiteral("%1%2 %3 %4")
                     .arg(point.startsSegment ? QStringLiteral("*") : QString())
                     .arg(point.record)
                     .arg(point.latitude)
                     .arg(point.longitude);
    QCOMPARE(found.join(QStringLiteral(", ")),
             QStringLiteral("*0 55.5 37.25, 5 0 180, *6 -90 -180, *7 55.5 0, 8 55.5 0, 10 1 0"));
    const TrackPoint before{5, kStart + 310, 0, 180, true};
    QVERIFY(!trackPoints(columns, 6, &before).front().startsSegment);
}

void TestTrack::measuresOnTheEllipsoid()
{
    const auto metres = [](double latitude, double longitude, double otherLatitude, double otherLongitude) {
        return metresBetween({0, 0, latitude, longitude, true}, {1, 0, otherLatitude, otherLongitude, false});
    };
    // A degree of the equator, a quarter of a meridian, and two places on both sides of the date line.
    QVERIFY(qAbs(metres(0, 0, 0, 1) - 111'319.491) < 0.001);
    QVERIFY(qAbs(metres(0, 0, 90, 0) - 10'001'965.729) < 0.001);
    QVERIFY(qAbs(metres(0, 179.5, 0, -179.5) - 111'319.491) < 0.001);
    QCOMPARE(metres(55, 37, 55, 37), 0.0);
}

QTEST_MAIN(TestTrack)
#include "tst_track.moc"
