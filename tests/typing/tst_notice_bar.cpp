// The bar of notices: what a click closes, and that nothing below it moves where a window keeps its place,
// however much there is to tell.

#include "support/data_table.h"
#include "typing/notice_bar.h"

#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

using vlk::Mark;
using vlk::Notice;
using vlk::NoticeBar;

Q_DECLARE_METATYPE(NoticeBar::Place)

namespace {

class BarOnShow : public QWidget
{
public:
    BarOnShow()
    {
        resize(600, 60);
        bar.resize(size());
        show();
    }

    NoticeBar bar{this};
};

} // namespace

class NoticeBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A click that was meant for the notice that has just gone leaves the one behind it alone; whoever closes
    // one after the other is not held up.
    void lateClick()
    {
        BarOnShow window;
        NoticeBar& bar = window.bar;
        auto* const cross = bar.findChild<QToolButton*>(QStringLiteral("label_Notice_Close"));
        const auto tell = [&bar] {
            for (const int number : {3, 2, 1})
                bar.tell(number, Notice{Mark::Advice, QString::number(number), {}});
        };
        QElapsedTimer clock;
        do {
            tell();
            clock.start();
            bar.end(1);
            QVERIFY(bar.isOnShow(2));
            QTest::mouseClick(cross, Qt::LeftButton);
        } while (clock.elapsed() >= 300); // where something else held it up, it says nothing
        QVERIFY(bar.isOnShow(2));
        const auto closes = [&] {
            QTest::mouseClick(cross, Qt::LeftButton);
            return !bar.isOnShow(2);
        };
        QVERIFY(QTest::qWaitFor(closes));
        QVERIFY(bar.isOnShow(3));
        QTest::mouseClick(cross, Qt::LeftButton);
        QVERIFY(!bar.isTelling());
    }

    // What waits behind another notice is seen without closing that one, by a click or Enter, until there is
    // something new.
    void ledOn()
    {
        BarOnShow window;
        NoticeBar& bar = window.bar;
        auto* const place = bar.findChild<QToolButton*>(QStringLiteral("label_NoticePlace"));
        const auto tell = [&](int number, Mark mark) {
            bar.tell(number, Notice{mark, QString::number(number), {{QStringLiteral("Do it"), [] {}}}});
        };
        tell(1, Mark::Advice);
        QVERIFY(place->isHidden());
        tell(2, Mark::Advice);
        tell(3, Mark::Advice);
        for (const int number : {2, 3, 1, 2}) {
            if (number == 3)
                QTest::keyClick(place, Qt::Key_Return);
            else
                QTest::mouseClick(place, Qt::LeftButton);
            QVERIFY(bar.isOnShow(number));
        }
        // One that is told anew stays where it is.
        tell(1, Mark::Advice);
        QVERIFY(bar.isOnShow(2));
        tell(4, Mark::Advice);
        QVERIFY(bar.isOnShow(1));
        QTest::mouseClick(place, Qt::LeftButton);
        tell(3, Mark::Invalid);
        QVERIFY(bar.isOnShow(3));
        // What is closed gives way to the worst.
        QTest::keyClick(place, Qt::Key_Return);
        QTest::keyClick(place, Qt::Key_Return);
        QVERIFY(bar.isOnShow(2));
        bar.end(2);
        QVERIFY(bar.isOnShow(3));
        QVERIFY(place->isEnabled());
        bar.end(1);
        bar.end(4);
        QVERIFY(place->isHidden());
        bar.setBehind(1);
        QVERIFY(place->isVisible() && !place->isEnabled());
    }

    void movesNothing_data()
    {
        using Place = NoticeBar::Place;
        DataTable<Place, int, bool>({"place", "words", "moves"})
            .row("a word", Place::Lines, 1, false)
            .row("two lines", Place::Lines, 7, false)
            .row("many lines", Place::Lines, 80, false)
            .row("many lines, at the edge", Place::Edge, 80, true)
            .row("many lines, no place kept", Place::None, 80, true);
    }
    void movesNothing()
    {
        QFETCH(NoticeBar::Place, place);
        QFETCH(int, words);
        QFETCH(bool, moves);
        QWidget window;
        window.resize(600, 400);
        auto* column = new QVBoxLayout(&window);
        auto* bar = new NoticeBar(&window);
        auto* below = new QPushButton(QStringLiteral("below"));
        column->addWidget(bar);
        column->addWidget(below, 1);
        bar->keepPlace(place);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const int before = below->y();
        const QString told = QStringLiteral("something ").repeated(words).trimmed();
        bar->tell(1, {Mark::Advice, told, {{QStringLiteral("Do it"), [] {}}}});
        QCoreApplication::processEvents();
        QCOMPARE(below->y() != before, moves);
        // What has no room is told by the tip, and to whoever asks for the text.
        auto* label = bar->findChild<QLabel*>(QStringLiteral("label_Notice"));
        QCOMPARE(label->text(), told);
        QToolTip::hideText();
        const QPoint middle = label->rect().center();
        QHelpEvent help(QEvent::ToolTip, middle, label->mapToGlobal(middle));
        QCoreApplication::sendEvent(label, &help);
        QCOMPARE(QToolTip::text(), place != NoticeBar::Place::None && words > 7 ? told : QString());
    }
};

QTEST_MAIN(NoticeBarTest)
#include "tst_notice_bar.moc"
