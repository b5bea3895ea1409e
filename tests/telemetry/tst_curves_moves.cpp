// How a person goes through curves of records: the span in sight, the cursors, gaps and marks.

#include "shown_curves.h"
#include "telemetry/record/record_head.h"

using namespace vlk;

class TestCurvesMoves : public QObject, ShownCurves
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { view_.reset(); }

    void movesByKeys();
    void movesByMouse();
    void staysInSightByMouse();
    void comparesTwoMoments();
    void marksWhatWasFound();
};

void TestCurvesMoves::movesByKeys()
{
    open(truckRecords(1000));
    const double whole = length();
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    key(Qt::Key_Left);
    QCOMPARE(records_->current(), 1);
    key(Qt::Key_Plus);
    QVERIFY(length() < whole * 0.8);
    QVERIFY(records_->inSight().contains(kTruckStart + 30));
    key(Qt::Key_End);
    QCOMPARE(records_->current(), 999);
    QVERIFY2(records_->inSight().contains(kTruckStart + 999 * 30), "the cursor is out of sight");
    const TimeSpan atEnd = records_->inSight();
    key(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(records_->inSight().to, atEnd.to - 0.1 * length());
    key(Qt::Key_Minus);
    key(Qt::Key_Minus);
    QCOMPARE(length(), whole);
    for (int i = 0; i < 60; ++i)
        key(Qt::Key_Plus);
    QCOMPARE(length(), 10.0);
    key(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(length(), whole);
    key(Qt::Key_Home);
    QCOMPARE(records_->current(), 0);
}

void TestCurvesMoves::movesByMouse()
{
    open(truckRecords(1000));
    const double whole = length();
    const int width = canvas()->width();
    // QTest moves no mouse with a button held.
    const auto moveTo = [&](Qt::MouseButton button, Qt::KeyboardModifiers modifiers, int to) {
        QMouseEvent move(QEvent::MouseMove, QPointF(to, 20), button, button, modifiers);
        QCoreApplication::sendEvent(canvas(), &move);
    };
    const auto drag = [&](Qt::MouseButton button, Qt::KeyboardModifiers modifiers, int from, int to) {
        QTest::mousePress(canvas(), button, modifiers, {from, 20});
        moveTo(button, modifiers, to);
        QTest::mouseRelease(canvas(), button, modifiers, {to, 20});
    };
    QTest::mouseClick(canvas(), Qt::LeftButton, {}, {width / 2, 20});
    QVERIFY(qAbs(records_->current() - 500) < 5);
    // Out and back, or given up, it chooses nothing.
    for (const bool isGivenUp : {false, true}) {
        QTest::mousePress(canvas(), Qt::LeftButton, {}, {width / 4, 20});
        moveTo(Qt::LeftButton, {}, width / 2);
        if (isGivenUp)
            key(Qt::Key_Escape);
        QTest::mouseRelease(canvas(), Qt::LeftButton, {}, {isGivenUp ? width / 2 : width / 4, 20});
        QCOMPARE(length(), whole);
    }
    drag(Qt::LeftButton, {}, width / 4, width / 2);
    QVERIFY(qAbs(length() / whole - 0.25) < 0.01);
    const double from = records_->inSight().from;
    drag(Qt::LeftButton, Qt::ShiftModifier, width / 4, width / 2);
    QVERIFY(qAbs((from - records_->inSight().from) / length() - 0.25) < 0.01);
    drag(Qt::MiddleButton, {}, width / 2, width / 4);
    QCOMPARE(qRound(records_->inSight().from), qRound(from));
    const auto turn = [&](Qt::KeyboardModifiers modifiers) {
        QWheelEvent wheel(QPointF(0, 20), canvas()->mapToGlobal({0, 20}), {}, {0, 120}, {}, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(canvas(), &wheel);
    };
    turn({});
    QVERIFY(qAbs(length() / whole - 0.25 * 0.7) < 0.01);
    QVERIFY2(qAbs(records_->inSight().from - from) < length() / 100, "it did not zoom at the pointer");
    turn(Qt::ControlModifier);
    QVERIFY(records_->inSight().from < from - length() / 20);
}

void TestCurvesMoves::staysInSightByMouse()
{
    constexpr quint32 gap = 10 * 86'400;
    RecordStore store = truckRecords(3);
    const RecordParts parts{{"Time", kTruckStart + 60 + gap}};
    store.add(30, parts.mask, parts.block);
    open(std::move(store));
    const auto press = [&](double from, double to, double moment) {
        const TimeSpan span{kTruckStart + from, kTruckStart + to};
        records_->setInSight(span);
        const int x = qRound((moment - from) / (to - from) * canvas()->width());
        QTest::mouseClick(canvas(), Qt::LeftButton, {}, {x, 20});
        QCOMPARE(records_->inSight(), span);
    };
    press(30, gap * 0.9, gap * 0.8);
    QCOMPARE(records_->current(), 2);
    press(gap * 0.1, gap + 60, gap * 0.2);
    QCOMPARE(records_->current(), 3);
    QVERIFY(!QToolTip::isVisible());
    // The mouse alone tells the gap, over the curves and over what is below them, and nothing beside it.
    const auto hover = [](QWidget* widget) {
        const QPoint place(widget->width() / 2, 3);
        QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
        QApplication::sendEvent(widget, &help);
    };
    records_->setFound({{0, true, "Refuelling 60 l"}}); // which makes a row of marks
    QCoreApplication::processEvents();
    QWidget* const strip = view_->childAt(plot_->geometry().bottomLeft() + QPoint(plot_->width() / 2, 8));
    QVERIFY(strip && strip != plot_);
    for (QWidget* const widget : {canvas(), strip}) {
        hover(widget);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), QStringLiteral("rec_450"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }
    records_->setInSight({static_cast<double>(kTruckStart), kTruckStart + 60.0});
    hover(canvas());
    QVERIFY(!QToolTip::isVisible());
    // Be it short: records are missing in it.
    const QByteArray later = RecordParts{{"NumPage", 100'005}, {"Time", kTruckStart + 61 + gap}}.bytes();
    records_->append(bytesAt(later.constData(), later.size()), ShownRecords::Current::Stays);
    records_->setInSight({kTruckStart + 60.0 + gap, kTruckStart + 61.0 + gap});
    hover(canvas());
    QCOMPARE(QToolTip::text(), QStringLiteral("rec_450 rec_600"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    press(gap * 0.7, gap * 0.9, gap * 0.8);
    QCOMPARE(records_->current(), 3);
    QCOMPARE(QToolTip::text(), QStringLiteral("rec_450"));
    QToolTip::hideText();
}

void TestCurvesMoves::comparesTwoMoments()
{
    open(truckRecords(3000));
    records_->setCurrent(2220);
    QCOMPARE(line(),
             QStringLiteral("A 18.11.2026 21:30:00 1") + QLocale().groupSeparator() + QStringLiteral("761"));
    key(Qt::Key_B);
    records_->setCurrent(2223);
    const QStringList parts = line().split(QStringLiteral(" | "));
    QCOMPARE(parts.size(), 3);
    QVERIFY(parts[1].startsWith(QLatin1String("B 21:31:30 ")));
    QCOMPARE(parts[2], QStringLiteral("1%1abbr_002 -250").arg(QChar(QChar::Nbsp)));
    key(Qt::Key_Down); // speed, which does not differ
    QVERIFY(line().endsWith(QStringLiteral(" 0.00%1abbr_024").arg(QChar(QChar::Nbsp))));
    key(Qt::Key_A);
    QCOMPARE(records_->current(), 2220);
    key(Qt::Key_B);
    key(Qt::Key_Escape);
    QCOMPARE(line().count(QLatin1Char('|')), 0);
    QCOMPARE(records_->current(), 2220);
    // With two cursors A can go alone, and B tells its whole moment then.
    key(Qt::Key_B);
    records_->setCurrent(2223);
    key(Qt::Key_A);
    key(Qt::Key_Delete);
    QVERIFY2(line().startsWith(QLatin1String("B 18.11.2026 21:31:30 ")), qPrintable(line()));
    QCOMPARE(records_->current(), 2223);
    key(Qt::Key_Left);
    QVERIFY2(line().startsWith(QLatin1String("B 18.11.2026 21:31:00 ")), qPrintable(line()));
    key(Qt::Key_A);
    key(Qt::Key_Left);
    QCOMPARE(line().count(QLatin1Char('|')), 2);
    key(Qt::Key_Escape);
    QCOMPARE(line().count(QLatin1Char('|')), 0);
    records_->setCurrent(2220);
    // A goes too, by key or button, and comes back where the user goes next.
    key(Qt::Key_Delete);
    QVERIFY(line().isEmpty());
    key(Qt::Key_Right);
    QVERIFY(line().startsWith(QLatin1String("A 18.11.2026 21:30:30 ")));
    QTest::keyClick(view_->findChild<QToolButton*>(QStringLiteral("toolButton_CursorA")), Qt::Key_Space);
    QVERIFY(line().isEmpty());
    key(Qt::Key_B);
    QVERIFY(line().startsWith(QLatin1String("B ")));
    key(Qt::Key_A);
    QCOMPARE(line().count(QLatin1Char('|')), 2);
}

void TestCurvesMoves::marksWhatWasFound()
{
    open(truckRecords(3000));
    records_->setFound({{1495, false, "Drain 9 l"}, {1500, true, "Refuelling 60 l"}});
    QCoreApplication::processEvents();
    const QPoint below = view_->findChild<QLabel*>(QStringLiteral("label_Cursors"))->pos() - QPoint(0, 12);
    const TimeSpan whole = records_->inSight();
    const double share = (records_->columns().times()[1500] - whole.from) / (whole.to - whole.from);
    const int left = canvas()->mapTo(view_.get(), QPoint()).x();
    const QPoint place(left + qRound(share * canvas()->width()), below.y());
    QWidget* const strip = view_->childAt(place);
    QTest::mouseClick(strip, Qt::LeftButton, {}, strip->mapFrom(view_.get(), place));
    QCOMPARE(records_->current(), 1500);
}

QTEST_MAIN(TestCurvesMoves)
#include "tst_curves_moves.moc"
