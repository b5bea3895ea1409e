// Curves of records that are still being made, of many that come in steps, and of damaged times among them.

#include "shown_curves.h"
#include "telemetry/fuel_view/summary_view.h"
#include "telemetry/record/record_head.h"
#include "telemetry/shown/work_progress.h"
#include "telemetry/track/track_view.h"

using namespace vlk;

class TestCurvesGrowing : public QObject, ShownCurves
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { view_.reset(); }

    void grows();
    void leavesOutDamagedTimes();
    void leavesTurnsToOthers();
};

void TestCurvesGrowing::grows()
{
    open(truckRecords(100));
    const auto add = [&](quint32 time) {
        const RecordParts parts{{"Time", time}, {"Speed", std::bit_cast<quint32>(99.0F)}};
        const QByteArray bytes = parts.bytes();
        records_->append(bytesAt(bytes.constData(), bytes.size()));
    };
    records_->setCurrent(99);
    add(kTruckStart + 3000);
    QCOMPARE(records_->current(), 100);
    QCOMPARE(records_->inSight().to, kTruckStart + 3000.0);
    QVERIFY(line().startsWith(QStringLiteral("A 18.11.2026 03:50:00 –")));
    key(Qt::Key_Down);
    QVERIFY(line().contains(QLatin1String("99.00")));
    // An earlier one takes its place; what is looked at and its own part in sight stay.
    records_->setInSight({kTruckStart + 0.0, kTruckStart + 60.0});
    records_->setCurrent(1);
    add(kTruckStart + 45);
    QCOMPARE(records_->inSight(), (TimeSpan{kTruckStart + 0.0, kTruckStart + 60.0}));
    key(Qt::Key_Right);
    QCOMPARE(records_->current(), 101);
    // What is not on show meanwhile lacks nothing when it is again.
    auto* const presets = view_->findChild<QComboBox*>(QStringLiteral("comboBox_CurvePreset"));
    QTest::keyClick(presets, Qt::Key_Down);
    add(kTruckStart + 3060);
    QTest::keyClick(presets, Qt::Key_Up);
    CurvesView anew(records_.get());
    const auto picture = [this](const CurvesView& view) {
        QImage image(600, 300, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        view.paint(painter, image.size(), records_->wholeTime());
        return image;
    };
    QCOMPARE(picture(*view_), picture(anew));
}

// A damaged time squeezes no curve into a corner: its record is none of them, but stays where one can go.
void TestCurvesGrowing::leavesOutDamagedTimes()
{
    RecordStore store = truckRecords(50);
    for (const quint32 second : {100'000'000U, 1500U, 1530U, 1560U}) {
        const RecordParts parts{{"Time", kTruckStart + second}};
        store.add(30, parts.mask, parts.block);
    }
    open(std::move(store));
    QCOMPARE(records_->wholeTime(), (TimeSpan{static_cast<double>(kTruckStart), kTruckStart + 1560.0}));
    records_->setCurrent(50);
    QCOMPARE(records_->inSight(), records_->wholeTime());
    key(Qt::Key_Left);
    QCOMPARE(records_->current(), 53);
}

// With many records no view is made before the event loop had its turn; others, or one more, may come then.
void TestCurvesGrowing::leavesTurnsToOthers()
{
    TrackView track(records_.get());
    SummaryView summary(records_.get());
    track.show();
    summary.show();
    const auto* const legend = view_->findChild<QWidget*>(QStringLiteral("legend_Curves"));
    const auto* const place = track.findChild<QLabel*>(QStringLiteral("label_TrackPlace"));
    const auto* const figures = summary.findChild<QTableView*>(QStringLiteral("tableView_Summary"));
    const auto made = [&] {
        return static_cast<int>(!legend->accessibleDescription().isEmpty()) +
               static_cast<int>(place->text().contains(QLatin1Char(','))) +
               static_cast<int>(figures->model()->rowCount() > 0);
    };
    const RecordStore many = truckRecords(ShownRecords::kMostAtOnce + 1);
    const RecordStore few = truckRecords(3000);
    open(few);
    QCOMPARE(made(), 3);
    open(many);
    QCOMPARE(made(), 0);
    int meanwhile = -1;
    QMetaObject::invokeMethod(
        this, [&] { meanwhile = made(); }, Qt::QueuedConnection);
    QTRY_COMPARE(made(), 3);
    QCOMPARE(meanwhile, 0);

    open(many);
    open(few);
    QCOMPARE(made(), 3);
    QVERIFY(!records_->isLeftToDo());

    open(many);
    records_->append(few.bytes(0));
    QCOMPARE(made(), 3);
    QVERIFY(!records_->isLeftToDo());

    // What was found out in front of them counts for its own contents alone.
    const auto later = std::make_shared<TelemetryContents>();
    later->records = few;
    records_->prepare(later);
    open(many);
    QCOMPARE(records_->byTime().size(), static_cast<std::size_t>(many.size()));
    records_->prepare(later);
    records_->setContents(later);
    QCOMPARE(records_->byTime().size(), static_cast<std::size_t>(few.size()));
    QCOMPARE(made(), 3);

    // What lasts longer than a moment tells how far it is, to its end or until others are opened.
    for (const RecordStore* next : {&few, static_cast<const RecordStore*>(nullptr)}) {
        const QSignalSpy told(records_.get(), &ShownRecords::wentOn);
        open(many);
        records_->later([] { QTest::qSleep(2 * kQuietMs); });
        records_->later([] {});
        QTRY_VERIFY(!told.empty());
        QVERIFY(told.first().first().toDouble() < 1);
        if (next)
            open(*next);
        QTRY_VERIFY(!records_->isLeftToDo());
        QCOMPARE(told.last().first().toDouble(), 1.0);
    }

    // Who chooses others meanwhile keeps them.
    open(many);
    auto* const presets = view_->findChild<QComboBox*>(QStringLiteral("comboBox_CurvePreset"));
    QTest::keyClick(presets, Qt::Key_Down);
    const QString chosen = legend->accessibleDescription();
    QVERIFY(!chosen.isEmpty());
    QTRY_VERIFY(!records_->isLeftToDo());
    QCOMPARE(legend->accessibleDescription(), chosen);
}

QTEST_MAIN(TestCurvesGrowing)
#include "tst_curves_growing.moc"
