// Curves of records: what is drawn of a million numbers, what is offered, and what is handed over.

#include "shown_curves.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "support/files.h"
#include "telemetry/curves/curve_series.h"
#include "telemetry/curves/curves_model.h"
#include "telemetry/curves/curves_sheet.h"
#include "telemetry/curves/hand_over.h"
#include "telemetry/curves/time_scale.h"
#include "telemetry/record/record_head.h"
#include "typing/notice_bar.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QtTest>
#include <QtWidgets>

#include <cstring>

using namespace vlk;

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

struct Sample
{
    quint32 time;
    double value;
    quint32 missing = 0; // in front of it
};

CurveSeries seriesOf(const std::vector<Sample>& samples)
{
    std::vector<quint32> times;
    std::vector<quint32> missing;
    NumberColumn numbers;
    std::vector<int> byTime;
    for (const Sample& sample : samples) {
        byTime.push_back(static_cast<int>(times.size()));
        times.push_back(sample.time);
        missing.push_back(sample.missing + (missing.empty() ? 0 : missing.back()));
        numbers.push_back(sample.value);
    }
    CurveSeries series;
    series.add(byTime, RecordGaps(times, missing), numbers, [](int) { return true; });
    return series;
}

QString told(const std::vector<QPolygonF>& pieces)
{
    QStringList all;
    for (const QPolygonF& piece : pieces) {
        QStringList points;
        for (const QPointF& point : piece)
            points << QStringLiteral("%1:%2").arg(point.x()).arg(point.y());
        all << points.join(QLatin1Char(' '));
    }
    return all.join(QLatin1String(" / "));
}

} // namespace

Q_DECLARE_METATYPE(std::vector<Sample>)

class TestCurves : public QObject, ShownCurves
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { view_.reset(); }

    void drawsPieces_data();
    void drawsPieces();
    void losesNoExtreme();
    void choosesRoundMoments_data();
    void choosesRoundMoments();
    void tellsTimes();
    void showsWhatThereIs();
    void standsOnTheFootWithoutValue();
    void tellsStatesWithoutRoom();
    void choosesCurvesAndKeepsThem();
    void handsOver();
    void printsAsItShows();
    void survivesOddRecords_data();
    void survivesOddRecords();
};

void TestCurves::drawsPieces_data()
{
    DataTable<std::vector<Sample>, double, double, int, QString>(
        {"samples", "from", "to", "columns", "pieces"})
        .row("nothing", {}, 0, 10, 10, "")
        .row("one", {{5, 1}}, 0, 10, 10, "5:1")
        .row("one beyond each end", {{0, 1}, {10, 2}, {20, 3}, {30, 4}, {40, 5}}, 15, 25, 10,
             "10:2 20:3 30:4")
        .row("a gap", {{0, 1}, {300, 2}, {601, 3}, {602, 4}}, 0, 999, 10, "0:1 300:2 / 601:3 602:4")
        .row("records missing by their numbers", {{0, 1}, {1, 2}, {2, 3, 1}, {3, 4}}, 0, 9, 10,
             "0:1 1:2 / 2:3 3:4")
        .row("some, many a column",
             {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {4, 2, 9}, {5, 2}, {6, 2}, {7, 2}, {8, 2}}, 0, 8, 2,
             "0:1 2:1 2:1 3:1 / 4:2 6:2 6:2 8:2")
        .row("no value", {{0, 1}, {1, kNone}, {2, 3}, {3, 4}}, 0, 9, 10, "0:1 / 2:3 3:4")
        .row("one moment", {{7, 1}, {7, 5}, {7, 2}}, 7, 7, 10, "7:1 7:5 7:2")
        .row("many a column",
             {{0, 3}, {1, 9}, {2, 1}, {3, 4}, {4, 5}, {5, kNone}, {6, kNone}, {7, kNone}, {8, 6}}, 0, 8, 2,
             "0:3 2:1 2:9 3:4 4:5 6:5 6:6 8:6");
}

void TestCurves::drawsPieces()
{
    QFETCH(std::vector<Sample>, samples);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(int, columns);
    QTEST(told(seriesOf(samples).pieces({from, to}, columns)), "pieces");
}

void TestCurves::losesNoExtreme()
{
    std::mt19937 random(7106);
    NumberColumn numbers;
    ExtremePyramid pyramid;
    for (int step = 0; step < 40; ++step) {
        const bool isSilent = step % 4 == 1;
        for (unsigned more = random() % 300; more > 0; --more)
            numbers.push_back(isSilent || random() % 20 == 0 ? kNone
                                                             : static_cast<double>(random() % 100'000));
        pyramid.grow(numbers);
        const std::size_t last = random() % (numbers.size() + 1);
        const std::size_t first = random() % (last + 1);
        Extremes expected;
        for (std::size_t i = first; i < last; ++i)
            expected.add(numbers[i]);
        const Extremes found = pyramid.over(numbers, first, last);
        QCOMPARE(found.least, expected.least);
        QCOMPARE(found.greatest, expected.greatest);
    }
}

void TestCurves::choosesRoundMoments_data()
{
    DataTable<double, int, QString, int>({"seconds", "most", "first", "count"})
        .row("minutes", 600, 6, "18.11. 03:02", 5)
        .row("hours", 86'400, 8, "18.11. 06:00", 8)
        .row("days", 7 * 86'400, 8, "19.11.", 7)
        .row("years", 5 * 365 * 86'400.0, 6, "21.10.2027", 5)
        .row("a second", 1, 6, "18.11. 03:00:01", 2);
}

// From 03:00:01 on the clock of UTC+3.
void TestCurves::choosesRoundMoments()
{
    QFETCH(double, seconds);
    QFETCH(int, most);
    const TimeTicks ticks = timeTicks({kTruckStart + 1.0, kTruckStart + 1 + seconds}, most, 3 * 3600);
    QTEST(tickText(ticks.major.front(), ticks.step, 3 * 3600), "first");
    QTEST(static_cast<int>(ticks.major.size()), "count");
    QVERIFY(ticks.minor.size() >= ticks.major.size());
}

void TestCurves::tellsTimes()
{
    const auto plain = [](QString text) { return text.replace(QChar::Nbsp, QLatin1Char(' ')); };
    QCOMPARE(plain(durationText(45)), QStringLiteral("45 abbr_003"));
    QCOMPARE(plain(durationText(-28 * 60 - 6)), QStringLiteral("-28 abbr_002"));
    QCOMPARE(plain(durationText(3 * 3600 + 300)), QStringLiteral("3 abbr_001 05 abbr_002"));
    QCOMPARE(plain(durationText(2 * 86'400 + 4 * 3600)), QStringLiteral("2 abbr_004 4 abbr_001"));
    QCOMPARE(momentText(kTruckStart, kTruckStart + 60, 10'800), QStringLiteral("03:00:00"));
    QCOMPARE(momentText(kTruckStart, kTruckStart - 86'400, 10'800), QStringLiteral("18.11.2026 03:00:00"));
    QCOMPARE(zoneText(10'800) + zoneText(0) + zoneText(-12'600), QStringLiteral("UTC+3UTCUTC-3:30"));
}

void TestCurves::showsWhatThereIs()
{
    open(truckRecords(3000));
    const auto* const legend = view_->findChild<QWidget*>(QStringLiteral("legend_Curves"));
    QCOMPARE(legend->accessibleDescription().count(QLatin1Char(';')), 1);
    auto* const presets = view_->findChild<QComboBox*>(QStringLiteral("comboBox_CurvePreset"));
    QTest::keyClick(presets, Qt::Key_Down);
    QVERIFY(legend->accessibleDescription().startsWith(QLatin1String("tmizta_158")));
    QTest::keyClick(presets, Qt::Key_Down); // GSM: satellites alone
    QCOMPARE(legend->accessibleDescription(), QStringLiteral("tmizta_147"));
    QTest::keyClick(presets, Qt::Key_Down); // no temperature
    QVERIFY(legend->accessibleDescription().isEmpty());
    // The engine first, which is the last to lose its room.
    CurvesModel model(records_.get(), nullptr);
    model.show({"StateIn1.0", "Module1.7"}, CurvesModel::Choice::Chosen);
    QCOMPARE(model.shownNames(), QStringList({"Module1.7", "StateIn1.0"}));
    QVERIFY(model.bands().size() > 2 && model.bands()[1].name.isEmpty()); // the stops
    // Before it the ignition, where an input changes with its events.
    TelemetryContents ignited;
    ignited.records = truckRecords(3000);
    FieldMask mask;
    TmiPage_Zeta3::ValueBlock block{};
    for (const auto& [index, value] : {std::pair(element("Code"), 10), std::pair(element("StateIn1"), 1)}) {
        mask.set(kElements[index].field);
        block[kElements[index].offset] = static_cast<std::uint8_t>(value);
    }
    const quint32 time = kTruckStart + 3000 * 30;
    mask.set(kElements[element("Time")].field);
    std::memcpy(&block[kElements[element("Time")].offset], &time, sizeof time);
    ignited.records.add(30, mask, block);
    ShownRecords others;
    CurvesModel lit(&others, nullptr);
    others.setContents(std::move(ignited));
    QTRY_VERIFY(!others.isLeftToDo());
    lit.show({"Module1.7", "StateIn1.0"}, CurvesModel::Choice::Chosen);
    QCOMPARE(lit.shownNames(), QStringList({"StateIn1.0", "Module1.7"}));
    QVERIFY(lit.bands()[1].name.isEmpty());
    // Litres stand before the code.
    records_->setComputed({{"litres", "Tank", "l", NumberColumn(3000, 250.5)}});
    QTest::keyClick(presets, Qt::Key_Home);
    QVERIFY(legend->accessibleDescription().startsWith(QLatin1String("Tank, l; ")));
    QCOMPARE(line().section(QLatin1Char(' '), 3), QStringLiteral("250.5%1l").arg(QChar(QChar::Nbsp)));
    // The curve that the user has told stays the one, whatever comes in front of it.
    records_->setComputed({});
    key(Qt::Key_Down);
    const QString told = line();
    records_->setComputed({{"litres", "Tank", "l", NumberColumn(3000, 250.5)}});
    QCOMPARE(line(), told);
    // Without a value in any record they are shown to who chose them alone.
    records_->setComputed({{"litres", "Tank", "l", NumberColumn(3000, kNone)}});
    model.show({"*", "Speed"}, CurvesModel::Choice::Offered);
    QCOMPARE(model.shownNames(), QStringList("Speed"));
    model.show({"*"}, CurvesModel::Choice::Chosen);
    QCOMPARE(model.shownNames(), QStringList("litres"));
    QVERIFY(model.extremesAt(0, records_->wholeTime()).isEmpty());
    QImage image(600, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    paintCurves(painter, image.size(), model, records_->wholeTime(), {});
}

// What is 0 all the time stands where the 0 of other values does: at the foot.
void TestCurves::standsOnTheFootWithoutValue()
{
    open(truckRecords(3000));
    const auto rowOfZero = [this](const NumberColumn& litres) {
        records_->setComputed({{"litres", "Tank", "l", litres}});
        CurvesModel model(records_.get(), nullptr);
        model.show({"litres"}, CurvesModel::Choice::Chosen);
        QImage image(600, 300, QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            paintCurves(painter, image.size(), model, records_->wholeTime(), {});
        }
        int longest = 0;
        int row = -1;
        for (int y = 0; y < image.height(); ++y) {
            int coloured = 0;
            for (int x = 0; x < image.width(); ++x)
                coloured += image.pixelColor(x, y).saturation() > 100 ? 1 : 0;
            if (coloured > longest) {
                longest = coloured;
                row = y;
            }
        }
        return longest > image.width() / 2 ? row : -1;
    };
    NumberColumn litres(3000, 0.);
    const int row = rowOfZero(litres);
    litres.back() = 1;
    QVERIFY(row > 0);
    QCOMPARE(row, rowOfZero(litres));
}

void TestCurves::tellsStatesWithoutRoom()
{
    open(truckRecords(3000));
    auto* const all = view_->findChild<QToolButton*>(QStringLiteral("toolButton_AllStates"));
    QVERIFY(!all->isVisible());
    // A narrow window has no room for the names of curves either: they go below the buttons.
    const auto* const legend = view_->findChild<QWidget*>(QStringLiteral("legend_Curves"));
    QVERIFY(legend->isVisible());
    view_->resize(340, 400);
    QCoreApplication::processEvents();
    QVERIFY(!legend->isVisible());
    // Where the curves are low, they are shortened before they take a line.
    const auto narrowest = [&](int height) {
        int width = 1200;
        do {
            view_->resize(width -= 10, height);
            QCoreApplication::processEvents();
        } while (legend->isVisible() && width > 340);
        return width;
    };
    QVERIFY(narrowest(240) < narrowest(400));
    view_->resize(900, 120);
    QCoreApplication::processEvents();
    QVERIFY(all->isVisible());
    QVERIFY(!all->toolTip().isEmpty());
    const int few = plot_->height();
    // Each row, of a state or of marks, is drawn or told, and the least of the curves stays.
    records_->setFound({{9, true, "Refuelling 60 l"}});
    records_->setPassing({1, 2, 3});
    int rows = 0;
    for (const int height : {700, 140, 170, 200, 230, 260}) {
        view_->resize(340, height);
        QCoreApplication::processEvents();
        const auto* const strip = view_->childAt(plot_->geometry().bottomLeft() + QPoint(2, 8));
        QVERIFY(strip && strip != plot_);
        const int drawn = strip->height() / (strip->fontMetrics().ascent() + 3);
        const int told = all->isVisible() ? all->toolTip().split(", ").size() : 0;
        if (height == 700)
            rows = drawn;
        QCOMPARE(drawn + told, rows);
        QVERIFY(plot_->height() >= 60);
        QVERIFY(strip->geometry().bottom() < view_->height());
    }
    QVERIFY(rows > 4);
    // Names have their room, with a title at the axis or without.
    int left = 0;
    for (const int height : {700, 260}) {
        view_->resize(900, height);
        QCoreApplication::processEvents();
        if (left == 0)
            left = canvas()->x();
        QCOMPARE(canvas()->x(), left);
    }
    view_->resize(900, 120);
    QCoreApplication::processEvents();
    QTest::keyClick(all, Qt::Key_Space);
    QCoreApplication::processEvents();
    QCOMPARE(all->text(), QStringLiteral("rec_413"));
    QVERIFY2(plot_->height() < few, "no room was made for them");
}

void TestCurves::choosesCurvesAndKeepsThem()
{
    open(truckRecords(3000));
    const auto* const legend = view_->findChild<QWidget*>(QStringLiteral("legend_Curves"));
    QTimer::singleShot(0, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        auto* const find = dialog->findChild<QLineEdit*>();
        auto* const list = dialog->findChild<QListWidget*>();
        QTest::keyClicks(find, QStringLiteral("none of them"));
        QTest::keyClick(list, Qt::Key_Space);
        find->selectAll();
        QTest::keyClicks(find, QStringLiteral("Power"));
        for (int row = 0; row < list->count(); ++row) {
            if (!list->item(row)->isHidden())
                list->setCurrentRow(row);
        }
        QTest::keyClick(list, Qt::Key_Space);
        const QSignalSpy kept(dialog, SIGNAL(presetKept(QString)));
        auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit_PresetName"));
        name->setFocus();
        QTest::keyClicks(name, QStringLiteral("Mine"));
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(kept, QList<QVariantList>{{QStringLiteral("Mine")}});
        QTest::keyClicks(name, QStringLiteral(" and yours"));
        QTest::keyClick(name, Qt::Key_Escape);
        QCOMPARE(name->text(), QStringLiteral("Mine"));
        QVERIFY(dialog->isVisible());
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    });
    QTest::keyClick(view_->findChild<QPushButton*>(QStringLiteral("pushButton_ChooseCurves")), Qt::Key_Space);
    QCOMPARE(legend->accessibleDescription().count(QLatin1Char(';')), 2);
    QCOMPARE(view_->findChild<QComboBox*>(QStringLiteral("comboBox_CurvePreset"))->currentIndex(), -1);
}

void TestCurves::handsOver()
{
    open(truckRecords(100));
    records_->setInSight({kTruckStart + 60.0, kTruckStart + 90.0});
    const QTemporaryDir folder;
    const QString table = folder.filePath(QStringLiteral("t.csv"));
    view_->saveTo(table);
    const QList<QByteArray> rows = readFile(table).split('\n');
    QCOMPARE(rows.size(), 4);
    QVERIFY(rows[0].startsWith("\xEF\xBB\xBFtmizta_123"));
    QCOMPARE(rows[1], QByteArray("100002,2026-11-18T03:01:00+03:00,3200,0\r"));
    const QByteArray unnumbered = RecordParts{{"Time", kTruckStart + 80}}.bytes();
    records_->append(bytesAt(unnumbered.constData(), unnumbered.size()));
    view_->saveTo(table);
    QVERIFY(readFile(table).contains("\n,2026-11-18T03:01:20+03:00,"));
    view_->setTitle(QStringLiteral("KAMAZ"));
    view_->saveTo(folder.filePath(QStringLiteral("p.svg")));
    const QByteArray svg = readFile(folder.filePath(QStringLiteral("p.svg")));
    QVERIFY(svg.contains(">KAMAZ") && svg.contains("18.11.2026 03:01:00") && svg.contains("</svg>"));
    QVERIFY(!svg.contains(">A ")); // no cursor is there
    // Lines end where the picture of them does, though there are records beyond.
    static const QRegularExpression lines(QStringLiteral("<polyline[^>]*points=\"([^\"]*)"));
    int points = 0;
    for (auto line = lines.globalMatch(QString::fromUtf8(svg)); line.hasNext();) {
        for (const QString& point : line.next().captured(1).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const double x = point.section(QLatin1Char(','), 0, 0).toDouble();
            QVERIFY2(x >= 0 && x <= 1200, qPrintable(point));
            ++points;
        }
    }
    QVERIFY(points > 4);
    view_->saveTo(folder.filePath(QStringLiteral("p.png")));
    QCOMPARE(QImage(folder.filePath(QStringLiteral("p.png"))).size(), QSize(2400, 1200));
    NoticeBar bar(view_.get(), QStringLiteral("label_Saved"));
    CurvesView(records_.get(), nullptr, &bar).saveTo(folder.filePath(QStringLiteral("none/p.png")));
    QVERIFY(view_->findChild<QLabel*>(QStringLiteral("label_Saved"))->text().startsWith("rec_171"));
}

void TestCurves::printsAsItShows()
{
    NoticeBar bar(view_.get(), QStringLiteral("label_Printed"));
    HandOver handOver(view_.get(), &bar);
    const QTemporaryDir folder;
    whenOpen<QPrintDialog>([&](QPrintDialog& dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(folder.filePath(QStringLiteral("p.pdf")));
        dialog.done(QDialog::Accepted);
    });
    int height = 0;
    handOver.print([&](QPainter& painter, const QSize&) { height = painter.fontMetrics().height(); });
    QVERIFY2(qAbs(height - view_->fontMetrics().height()) <= 2, qPrintable(QString::number(height)));
    const auto* const told = bar.findChild<QLabel*>(QStringLiteral("label_Printed"));
    QVERIFY(told->text().contains(QStringLiteral("rec_170")));
    // As lines, which stay sharp however large the paper.
    open(truckRecords(3000));
    const QString path = folder.filePath(QStringLiteral("curves.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(path);
    QPainter painter(&printer);
    CurvesModel model(records_.get(), nullptr);
    model.show({QStringLiteral("Speed")}, CurvesModel::Choice::Chosen);
    paintCurves(painter, {1200, 600}, model, records_->wholeTime(), {});
    painter.end();
    const QByteArray pdf = readFile(path);
    QVERIFY(pdf.contains("/Page") && !pdf.contains("/Subtype /Image"));
}

void TestCurves::survivesOddRecords_data()
{
    DataTable<std::vector<Sample>>({"records"})
        .row("none", {})
        .row("one", {{kTruckStart, 5}})
        .row("no times", {{0, 5}, {0, 6}})
        .row("back and forth", {{kTruckStart, 1}, {kTruckStart - 100, 2}, {kTruckStart + 100, 3}, {0, 7}})
        .row("as far as it goes", {{1, 1}, {0xFFFF'FFFF, 2}})
        .row("huge values", {{kTruckStart, 3e38}, {kTruckStart + 1, -3e38}, {kTruckStart + 2, kNone}})
        .row("no value", {{kTruckStart, kNone}, {kTruckStart + 1, kNone}, {kTruckStart + 2, kNone}})
        .row("ten thousand at once", std::vector<Sample>(10'000, {kTruckStart, 5}));
}

void TestCurves::survivesOddRecords()
{
    QFETCH(std::vector<Sample>, records);
    RecordStore store;
    for (const Sample& sample : records) {
        const RecordParts parts{{"Time", sample.time},
                                {"Code", 34},
                                {"Speed", std::bit_cast<quint32>(static_cast<float>(sample.value))}};
        store.add(30, parts.mask, parts.block);
    }
    open(std::move(store));
    const std::vector<int> keys{Qt::Key_Right, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_End, Qt::Key_B,
                                Qt::Key_Left,  Qt::Key_Home, Qt::Key_Down,  Qt::Key_A,   Qt::Key_PageDown};
    for (const int each : keys) {
        key(each);
        view_->grab();
    }
    QTest::mouseClick(canvas(), Qt::LeftButton, {}, {10, 10});
    QVERIFY(records_->current() < records_->records().size());
    QCOMPARE(line().isEmpty(), records.empty());
}

QTEST_MAIN(TestCurves)
#include "tst_curves.moc"
