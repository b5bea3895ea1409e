// Where the vehicle was: which records are points, how far they are apart, and the track on show.

#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/records.h"
#include "support/truck_records.h"
#include "telemetry/files/rare_events.h"
#include "telemetry/files/stops.h"
#include "telemetry/files/track_points.h"
#include "telemetry/shown/shown_records.h"
#include "telemetry/track/track_path.h"
#include "telemetry/track/track_view.h"
#include "telemetry/track/value_classes.h"

#include <QtTest>
#include <QtWidgets>

#include <numeric>

using namespace vlk;

namespace {

constexpr quint32 kStart = 1'763'625'600; // 20.11.2025 08:00 UTC

struct Fix
{
    quint32 time;
    double latitude;
    double longitude;
    quint64 state = 2;
    float speed = 0;
    quint64 number = 0;
};

RecordStore storeOf(const std::vector<Fix>& fixes)
{
    const auto raw = [](double degrees) {
        return static_cast<quint64>(static_cast<qint64>(std::llround(degrees * 600'000)));
    };
    RecordStore store;
    for (const Fix& fix : fixes) {
        const RecordParts parts{
            {"NumPage", fix.number},         {"Time", fix.time},
            {"Latitude", raw(fix.latitude)}, {"Longitude", raw(fix.longitude)},
            {"StateNGauge", fix.state},      {"Speed", std::bit_cast<quint32>(fix.speed)}};
        store.add(30, parts.mask, parts.block);
    }
    return store;
}

QStringList told(const std::vector<TrackPoint>& points)
{
    QStringList all;
    for (const TrackPoint& point : points)
        all << QStringLiteral("%1%2 %3 %4")
                   .arg(point.startsSegment ? QStringLiteral("*") : QString())
                   .arg(point.record)
                   .arg(point.latitude)
                   .arg(point.longitude);
    return all;
}

// A picture of the part of the track in that span.
QImage pictureOf(const TrackView& view, const TimeSpan& span)
{
    QImage image(600, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(2, 2);
    view.paint(painter, {300, 200}, span);
    return image;
}

} // namespace

Q_DECLARE_METATYPE(std::vector<Fix>)

class TestTrack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsThePoints();
    void measuresOnTheEllipsoid();
    void findsStopsAndRareEvents();
    void thinsOut();
    void classifies_data();
    void classifies();
    void showsAndMoves();
    void tellsTimesApart();
    void survivesOddTracks_data();
    void survivesOddTracks();
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
    QCOMPARE(told(trackPoints(columns)).join(QStringLiteral(", ")),
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

void TestTrack::findsStopsAndRareEvents()
{
    RecordStore store = storeOf({{kStart, 1, 1, 2, 50},
                                 {kStart + 60, 1, 1, 2, 2},
                                 {kStart + 120, 1, 1, 2, 0},
                                 {kStart + 240, 1, 1, 2, 2},
                                 {kStart + 300, 1, 1, 2, 40},
                                 {kStart + 360, 1, 1, 2, 0}, // too short
                                 {kStart + 400, 1, 1, 2, 40},
                                 {kStart + 500, 1, 1, 2, 0}, // a gap ends it
                                 {kStart + 600, 1, 1, 2, 0},
                                 {kStart + 9000, 1, 1, 2, 0},
                                 {kStart + 9180, 1, 1, 2, 0}});
    RecordColumns columns(store);
    std::vector<int> all(store.size());
    std::iota(all.begin(), all.end(), 0);
    QStringList found;
    for (const Stop& stop : stopsOf(columns, all))
        found << QStringLiteral("%1-%2").arg(stop.first).arg(stop.last);
    QCOMPARE(found.join(QLatin1Char(' ')), QStringLiteral("1-3 9-10"));

    // Nor did it stand, nor go its way, where records are missing.
    RecordStore holed = storeOf({{kStart, 1, 1, 2, 0, 7},
                                 {kStart + 120, 1, 1, 2, 0, 8},
                                 {kStart + 180, 1, 1, 2, 0, 9},
                                 {kStart + 240, 1, 1, 2, 0, 11},
                                 {kStart + 300, 1, 1, 2, 0, 12}});
    RecordColumns ofHoled(holed);
    all.resize(5);
    const std::vector<Stop> stops = stopsOf(ofHoled, all);
    QCOMPARE(stops.size(), std::size_t{1});
    QCOMPARE(stops[0].last, 2);
    TrackPath path;
    path.add(ofHoled);
    QVERIFY(path.startsSegment(3) && !path.startsSegment(2) && !path.startsSegment(4));

    // Any speed that a record tells counts.
    RecordStore ofCan;
    for (const quint64 second : {0, 100, 200}) {
        const RecordParts parts{{"Time", kStart + second}, {"CAN_Speed", 0}};
        ofCan.add(30, parts.mask, parts.block);
    }
    RecordColumns canColumns(ofCan);
    QCOMPARE(stopsOf(canColumns, {0, 1, 2}).size(), std::size_t{1});

    const RecordStore truck = truckRecords(6000);
    RecordColumns ofTruck(truck);
    all.resize(6000);
    std::iota(all.begin(), all.end(), 0);
    for (const int record : rareEvents(ofTruck, all))
        QVERIFY(ofTruck.codes()[record] == 34 || ofTruck.codes()[record] == 40);
    QVERIFY(!rareEvents(ofTruck, all).empty());
}

// No level is further from the track than it says, and each holds the points that begin a segment.
void TestTrack::thinsOut()
{
    const RecordStore all = truckRecords(5000);
    RecordStore store;
    RecordColumns columns(store);
    TrackPath path;
    for (const int end : {1000, 1500, 5000}) {
        const int first = store.size();
        while (store.size() < end)
            store.add(all.layout(store.size()), all.bytes(store.size()));
        path.add(columns, first);
    }
    const std::vector<TrackPoint> points = trackPoints(columns);
    std::size_t before = points.size() + 1;
    for (const double scale : {0.5, 40.0, 700.0, 1e6}) {
        const TrackPath::Level& level = path.levelFor(scale);
        QVERIFY(level.apart <= scale && level.kept.size() <= before);
        before = std::min(before, level.kept.size());
        auto kept = level.kept.begin();
        for (int point = 0; point < static_cast<int>(points.size()); ++point) {
            if (std::next(kept) != level.kept.end() && *std::next(kept) == point)
                ++kept;
            QVERIFY(QLineF(path.place(point), path.place(*kept)).length() <= level.apart);
            QVERIFY(level.of[(kept - level.kept.begin()) / TrackPath::Level::kChunk]
                        .adjusted(-1e-6, -1e-6, 1e-6, 1e-6)
                        .contains(path.place(*kept)));
        }
    }
    const TrackPoint back = path.at(path.place(1234));
    QVERIFY(metresBetween(back, points[1234]) < 0.01);
    QCOMPARE(path.pointOf(-1), -1);
    QCOMPARE(path.pointOf(1234), 1234);
}

void TestTrack::classifies_data()
{
    DataTable<double, double, int, double, double>({"least", "greatest", "count", "first", "second"})
        .row("speeds", 0, 118, 6, 0, 20)
        .row("temperatures", -13.5, 7, 5, -15, -10)
        .row("a limit at the end", 0, 60, 4, 0, 20)
        .row("small", 12.1, 12.9, 5, 12, 12.2)
        .row("one value", 7, 7, 1, 7, 8)
        .row("endless", 0, std::numeric_limits<double>::infinity(), 1, 0, 1);
}

void TestTrack::classifies()
{
    QFETCH(double, least);
    QFETCH(double, greatest);
    const ValueClasses classes(least, greatest);
    QTEST(classes.count(), "count");
    QTEST(qRound64(classes.from(0) * 1000) / 1000.0, "first");
    QTEST(qRound64(classes.from(1) * 1000) / 1000.0, "second");
    QCOMPARE(classes.classOf(least), 0);
    QCOMPARE(classes.classOf(greatest), classes.count() - 1);
    QCOMPARE(classes.classOf(std::numeric_limits<double>::quiet_NaN()), -1);
}

void TestTrack::showsAndMoves()
{
    ShownRecords records;
    TrackView view(&records);
    view.resize(500, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    TelemetryContents contents;
    contents.records = storeOf({{kStart, 55, 37}, {kStart + 60, 55, 37.2, 2, 60}, {kStart + 120, 0, 0}});
    records.setContents(std::move(contents));
    auto* const canvas = view.findChild<QWidget*>(QStringLiteral("canvas_Track"));
    const auto* const place = view.findChild<QLabel*>(QStringLiteral("label_TrackPlace"));
    const auto pixels = [&] { return canvas->grab().toImage(); };
    // The east is on the right: the margin of 40 pixels on both sides.
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {canvas->width() - 40, canvas->height() / 2});
    QCOMPARE(records.current(), 1);
    QVERIFY(place->text().startsWith(QLatin1String("55.000000, 37.200000   60.00")));
    const QString told = place->text();
    const QImage before = canvas->grab().toImage();
    {
        // In another language its unit and its legend are other ones.
        const TextsAs texts([](const QString& key) { return key.toUpper(); });
        view.retranslate();
        QCOMPARE(place->text(), told.toUpper());
        QVERIFY(canvas->grab().toImage() != before);
    }
    view.retranslate();
    QCOMPARE(place->text(), told);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {40, canvas->height() / 2});
    QCOMPARE(records.current(), 0);
    QTest::keyClick(canvas, Qt::Key_PageDown);
    QTest::keyClick(canvas, Qt::Key_PageDown);
    QCOMPARE(records.current(), 1);
    records.setCurrent(2);
    QCOMPARE(place->text(), QStringLiteral("rec_201"));
    const QImage fitted = pixels();
    QTest::keyClick(canvas, Qt::Key_Right);
    QTest::keyClick(canvas, Qt::Key_Plus);
    QVERIFY(pixels() != fitted);
    QTest::keyClick(canvas, Qt::Key_Home);
    QCOMPARE(pixels(), fitted);
    QTest::mousePress(canvas, Qt::LeftButton, {}, {200, 100});
    QMouseEvent move(QEvent::MouseMove, QPointF(240, 130), Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(canvas, &move);
    QTest::mouseRelease(canvas, Qt::LeftButton, {}, {240, 130});
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {80, canvas->height() / 2 + 30});
    QCOMPARE(records.current(), 0);
    // What is looked at comes into sight; once all is shown it stays so at any size.
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(canvas, Qt::Key_Left);
    records.setCurrent(1);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, canvas->rect().center());
    QCOMPARE(records.current(), 1);
    QTest::keyClick(canvas, Qt::Key_Home);
    records.setCurrent(0);
    view.resize(300, 300);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {canvas->width() - 40, canvas->height() / 2});
    QCOMPARE(records.current(), 1);
    // Alone in sight, the second place is in the middle.
    records.setInSight({kStart + 50.0, kStart + 70.0});
    QTest::keyClick(view.findChild<QCheckBox*>(), Qt::Key_Space);
    QTest::keyClick(canvas, Qt::Key_Home);
    QTest::mouseClick(canvas, Qt::LeftButton, {}, canvas->rect().center());
    QCOMPARE(records.current(), 1);
    // A picture of a part is of that part alone, though the track came that way another time.
    const auto pictured = [](const std::vector<Fix>& fixes) {
        ShownRecords shown;
        TrackView part(&shown);
        TelemetryContents all;
        all.records = storeOf(fixes);
        shown.setContents(std::move(all));
        return pictureOf(part, {kStart, kStart + 60.0});
    };
    const std::vector<Fix> first{{kStart, 55, 37}, {kStart + 60, 55, 37.2}};
    std::vector<Fix> again = first;
    again.push_back({kStart + 90, 55.05, 37.1});
    QCOMPARE(pictured(again), pictured(first));
    // Where the vehicle stood all the time it shows how it came, also where it was too far away for that.
    const auto isLined = [&pictured](const std::vector<Fix>& fixes) {
        const QImage picture = pictured(fixes);
        int lines = 0;
        // Between the middle and the edge, and between legend and scale.
        for (int y = picture.height() / 3; y < picture.height() * 2 / 3; ++y)
            lines += picture.pixel(picture.width() * 5 / 8, y) != qRgb(255, 255, 255);
        return lines > 0;
    };
    const std::vector<Fix> parked{{kStart, 55, 37}, {kStart + 60, 55.00001, 37}};
    std::vector<Fix> arrived{{kStart - 400, 55, 37.01}, {kStart - 200, 55, 37.005}};
    arrived.insert(arrived.end(), parked.begin(), parked.end());
    QVERIFY(isLined(arrived));
    QVERIFY(!isLined(parked));
    QVERIFY(isLined({{kStart - 400, 55, 37.01}, {kStart - 200, 55, 37.002}, {kStart + 900, 56, 37}}));
    const QTemporaryDir folder;
    view.saveTo(folder.filePath(QStringLiteral("t.svg")));
    QVERIFY(readFile(folder.filePath(QStringLiteral("t.svg"))).contains("rec_194"));
    // Coloured by what no record tells it has no classes to explain.
    constexpr float none = std::numeric_limits<float>::quiet_NaN();
    QVERIFY(readFile(folder.filePath(QStringLiteral("t.svg"))).contains("tmizta_"));
    TelemetryContents silent;
    silent.records = storeOf({{kStart, 55, 37, 2, none}, {kStart + 60, 55, 37.2, 2, none}});
    records.setContents(std::move(silent));
    records.setCurrent(1);
    QVERIFY(place->text().endsWith(QChar(0x2013)));
    view.saveTo(folder.filePath(QStringLiteral("n.svg")));
    QVERIFY(!readFile(folder.filePath(QStringLiteral("n.svg"))).contains("tmizta_"));
}

// How a vehicle came and left at other times than the one that is pictured is in no colours of speed, and the
// caption names its time.
void TestTrack::tellsTimesApart()
{
    std::vector<Fix> fixes{{kStart - 120, 55, 37.01, 2, 60}, {kStart - 60, 55, 37.005, 2, 40}};
    for (quint32 second = 0; second <= 1200; second += 60)
        fixes.push_back({kStart + second, 55, 37});
    fixes.push_back({kStart + 1260, 55, 37.01, 2, 60});
    TelemetryContents contents;
    contents.records = storeOf(fixes);
    contents.records.setUtcOffset(0);
    ShownRecords records;
    const TrackView view(&records);
    records.setContents(std::move(contents));
    const auto colours = [&view](const TimeSpan& span) {
        const QImage picture = pictureOf(view, span);
        int colours = 0;
        for (int x = picture.width() / 2; x < picture.width(); ++x)
            for (int y = picture.height() / 3; y < picture.height() * 2 / 3; ++y)
                colours += QColor(picture.pixel(x, y)).hsvSaturation() > 60;
        return colours;
    };
    const TimeSpan parked{kStart + 300, kStart + 600};
    const TimeSpan all{kStart - 200, kStart + 2000};
    QVERIFY2(colours(all) > 20 * (colours(parked) + 1), qPrintable(QString::number(colours(parked))));
    // Nor is a record of another time marked there.
    const QImage picture = pictureOf(view, parked);
    records.setCurrent(1);
    QCOMPARE(pictureOf(view, parked), picture);
    const TextsAs texts([](const QString& key) { return key.startsWith("rec_74") ? key + " %1" : key; });
    QCOMPARE(view.caption(parked),
             QStringLiteral("rec_199: 20.11.2025 08:05 – 08:10, UTC; rec_740 20.11.2025 08:00 – 08:20; "
                            "rec_741 20.11.2025 07:58 – 08:21"));
    QCOMPARE(view.caption(all), QStringLiteral("rec_199: 20.11.2025 07:56 – 08:33, UTC"));
}

void TestTrack::survivesOddTracks_data()
{
    DataTable<std::vector<Fix>, double>({"fixes", "width"})
        .row("nothing", {}, 0)
        .row("no place", {{kStart, 0, 0}}, 0)
        .row("never moves", std::vector<Fix>(2000, {kStart, 55.75, 37.62}), 0)
        .row("over the date line", {{kStart, 10, 179.9}, {kStart + 1, 10, -179.9}, {kStart + 2, 10, 179.9}},
             21'889)
        .row("at the poles", {{kStart, 90, 0}, {kStart + 1, -90, 180}}, 20'003'932);
}

void TestTrack::survivesOddTracks()
{
    QFETCH(std::vector<Fix>, fixes);
    QFETCH(double, width);
    RecordStore store = storeOf(fixes);
    RecordColumns columns(store);
    TrackPath path;
    path.add(columns);
    double east = 0;
    for (int point = 0; point < static_cast<int>(path.points().size()); ++point)
        east = std::max(east, path.place(point).x());
    QVERIFY2(qAbs(east - width) <= width / 100, qPrintable(QString::number(east)));
    ShownRecords records;
    TrackView view(&records);
    TelemetryContents contents;
    contents.records = std::move(store);
    records.setContents(std::move(contents));
    auto* const canvas = view.findChild<QWidget*>(QStringLiteral("canvas_Track"));
    for (const int key : {Qt::Key_Plus, Qt::Key_Left, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_Minus}) {
        QTest::keyClick(canvas, Qt::Key(key));
        view.grab();
    }
    pictureOf(view, records.inSight());
}

QTEST_MAIN(TestTrack)
#include "tst_track.moc"
