// Windows that are larger than the screen, or stand beyond its edge.

#include "support/data_table.h"
#include "windows/fit_to_screen.h"

#include <QtTest>
#include <QtWidgets>

class FitToScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogs_data()
    {
        // what the contents need, and how large the window is asked to be
        DataTable<QSize, QSize, bool, bool>({"contents", "asked", "scrollsAcross", "scrollsDown"})
            .row("small", {100, 100}, {300, 200}, false, false)
            .row("too small for its contents", {400, 300}, {200, 100}, false, false)
            .row("high contents", {400, 3000}, {200, 100}, false, true)
            .row("wide contents", {3000, 100}, {200, 300}, true, false)
            .row("all too large", {3000, 3000}, {4000, 4000}, true, true)
            .row("asked for too much", {100, 100}, {4000, 4000}, false, false);
    }
    void dialogs()
    {
        QFETCH(QSize, contents);
        QFETCH(QSize, asked);
        QDialog dialog;
        auto* area = new vlk::ContentArea;
        auto* content = new QWidget;
        auto* inside = new QVBoxLayout(content);
        auto* block = new QWidget;
        block->setMinimumSize(contents);
        inside->addWidget(block);
        area->setWidget(content);
        auto* button = new QPushButton("Close");
        auto* layout = new QVBoxLayout(&dialog);
        layout->addWidget(area, 1);
        layout->addWidget(button);
        vlk::keepOnScreen(&dialog);
        dialog.resize(asked);
        const QRect screen = dialog.screen()->availableGeometry();
        dialog.move(screen.bottomRight() - QPoint(20, 20));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));

        QVERIFY(screen.contains(dialog.frameGeometry()));
        QVERIFY(dialog.rect().contains(button->geometry()));
        QTEST(area->horizontalScrollBar()->maximum() > 0, "scrollsAcross");
        QTEST(area->verticalScrollBar()->maximum() > 0, "scrollsDown");

        // Contents that come to need more make the window larger, as far as there is room.
        block->setMinimumSize(contents + QSize(50, 50));
        QCoreApplication::processEvents();
        QVERIFY(screen.contains(dialog.geometry()));
        QTEST(area->horizontalScrollBar()->maximum() > 0, "scrollsAcross");
        QTEST(area->verticalScrollBar()->maximum() > 0, "scrollsDown");
    }

    void leastSizes_data()
    {
        DataTable<double, bool>({"share", "losesFrame"})
            .row("screen with room to spare", 0.5, false)
            .row("screen just as large", 1, true)
            .row("screen too small", 2, false);
    }
    // Twice: a window that comes to the same place again is not moved.
    void leastSizes()
    {
        QFETCH(double, share);
        QFETCH(bool, losesFrame);
        QDialog dialog;
        const QSize least = dialog.screen()->size() * share;
        vlk::keepLeastSize(&dialog, least * dialog.devicePixelRatioF());
        for (int time = 0; time < 2; ++time) {
            dialog.show();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            const QSize frame = dialog.frameGeometry().size() - dialog.size();
            QVERIFY(!frame.isEmpty());
            QCOMPARE(dialog.minimumSize(), losesFrame ? least - frame : least);
            dialog.hide();
        }
    }

    void opensWhereItWasClosed()
    {
        QDialog kept;
        QDialog least;
        vlk::keepOnScreen(&kept);
        vlk::keepLeastSize(&least, {100, 100});
        for (QDialog* dialog : {&kept, &least}) {
            dialog->resize(200, 100);
            for (const QPoint place : {QPoint(60, 50), QPoint(90, 70)}) {
                dialog->show();
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                // As the window system moves it for the user.
                dialog->windowHandle()->setFramePosition(place);
                QTRY_COMPARE(dialog->pos(), place);
                dialog->hide();
                dialog->setAttribute(Qt::WA_Moved, false);
                dialog->show();
                QCOMPARE(dialog->pos(), place);
                // Without it the window system chooses.
                QVERIFY(dialog->testAttribute(Qt::WA_Moved));
                dialog->hide();
            }
        }
    }
};

QTEST_MAIN(FitToScreenTest)
#include "tst_fit_to_screen.moc"
