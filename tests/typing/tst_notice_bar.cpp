// The bar of notices under the mouse.

#include "typing/notice_bar.h"

#include <QToolButton>
#include <QtTest>

using vlk::Mark;
using vlk::Notice;
using vlk::NoticeBar;

class NoticeBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A click that was meant for the notice that has just gone leaves the one behind it alone; whoever closes
    // one after the other is not held up.
    void lateClick()
    {
        QWidget window;
        NoticeBar bar(&window);
        window.resize(600, 60);
        bar.resize(window.size());
        window.show();
        auto* const cross = bar.findChild<QToolButton*>(QStringLiteral("label_Notice_Close"));
        const auto tell = [&bar] {
            for (const int number : {3, 2, 1})
                bar.tell(number, Notice{Mark::advice, QString::number(number), {}});
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
};

QTEST_MAIN(NoticeBarTest)
#include "tst_notice_bar.moc"
