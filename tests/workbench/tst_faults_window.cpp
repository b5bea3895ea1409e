// The window of the faults: F9 over every window, and what it comes up for by itself.

#include "opened_workbench.h"
#include "support/data_table.h"
#include "window/answer_watch.h"
#include "window/message_box.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QWidget* visibleFaults()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == QLatin1String("dialog_Faults"))
            return window;
    }
    return nullptr;
}

// The window is brought to the front, and F9 pressed in it.
bool callsFaults(QWidget& window)
{
    window.show();
    window.activateWindow();
    const bool isActive = QTest::qWaitForWindowActive(&window);
    QTest::keyClick(&window, Qt::Key_F9);
    return isActive;
}

} // namespace

class FaultsWindowTest : public QObject
{
    Q_OBJECT

    struct Bench : OpenedWorkbench
    {
        bool start() { return OpenedWorkbench::start(VLK_ECHO_PLUGIN); }
        // By their key, over the main window.
        bool openFaults()
        {
            if (!start())
                return false;
            window.activateWindow();
            if (!QTest::qWaitFor([this] { return window.isActiveWindow(); }))
                return false;
            QTest::keyClick(&window, Qt::Key_F9);
            return visibleFaults() != nullptr;
        }
    };

private Q_SLOTS:
    // F9 brings the faults over whatever window is in front, with the keyboard, and sends them away again.
    void bringsFaultsOverEveryWindow()
    {
        Bench bench;
        QVERIFY(bench.start());
        QWidget telemetry;
        QDialog configuration;
        configuration.setModal(true);
        configuration.setGeometry(500, 600, 300, 200);
        QMessageBox question(QMessageBox::Question, {}, QStringLiteral("?"), QMessageBox::Yes,
                             &configuration);
        bench.window.showHelp(QStringLiteral("index.html"));
        auto* help = bench.window.findChild<QDialog*>(QStringLiteral("dialog_Help"));
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        for (QWidget* window : {static_cast<QWidget*>(&bench.window), static_cast<QWidget*>(help), &telemetry,
                                static_cast<QWidget*>(&configuration), static_cast<QWidget*>(&question)}) {
            window->show();
            window->activateWindow();
            QTRY_VERIFY(window->isActiveWindow());
            QTest::keyClick(window, Qt::Key_F9);
            QWidget* faults = visibleFaults();
            QVERIFY2(faults, window->metaObject()->className());
            QCOMPARE(faults->parentWidget(), window);
            QTRY_COMPARE(QApplication::activeWindow(), faults);
            QVERIFY(screen.contains(faults->frameGeometry()));
            // A tank can be filled over whatever window measures it.
            auto& tracker = bench.window.session().tracker();
            tracker.pour(0, -1000);
            faults->findChild<QAbstractButton*>(QStringLiteral("pushButton_Pour_20"))->click();
            QCOMPARE(tracker.fuelIn(0), 20.);
            // A number counts when its typing has ended.
            auto* delay = faults->findChild<QSpinBox*>(QStringLiteral("spinBox_Delay"));
            const auto delayMs = [&bench] { return bench.window.session().tracker().faults().delayMs; };
            for (const auto& [typed, taken] : {std::pair("1500", 1500), {"999999", delay->maximum()}}) {
                const int before = delayMs();
                delay->setFocus();
                delay->selectAll();
                QTest::keyClicks(QApplication::focusWidget(), typed);
                QCOMPARE(delayMs(), before);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
                QCOMPARE(delayMs(), taken);
            }
            bench.window.session().tracker().setFaults({});
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
            QVERIFY(!faults->isVisible());
            QTRY_COMPARE(QApplication::activeWindow(), window);
        }
    }

    // A modal window that comes up over their owner leaves them usable, and gives them back when it goes.
    void staysUsableUnderNewWindows()
    {
        Bench bench;
        QVERIFY(bench.openFaults());
        // Where the user has put them, and as large.
        visibleFaults()->resize(visibleFaults()->size() + QSize(20, 10));
        visibleFaults()->move(3, 5);
        const QRect place = visibleFaults()->geometry();
        const auto tank = [] {
            return visibleFaults()->findChild<QComboBox*>(QStringLiteral("comboBox_Tank"));
        };
        tank()->setCurrentIndex(2);
        QDialog report;
        report.setModal(true);
        report.show();
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &report);
        QCOMPARE(visibleFaults()->geometry(), place);
        QCOMPARE(tank()->currentIndex(), 2);
        bench.window.move(600, 300);
        report.hide();
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &bench.window);
        QCOMPARE(visibleFaults()->geometry(), place);
        QCOMPARE(tank()->currentIndex(), 2);
    }

    // Where the user has put them they come up again, over whatever is there, in the next run, too, unless
    // the screen has no room there.
    void comeUpWhereTheyWere()
    {
        Bench bench;
        QVERIFY(bench.openFaults());
        visibleFaults()->move(bench.window.pos() + QPoint(20, 20));
        visibleFaults()->findChild<QComboBox*>(QStringLiteral("comboBox_Tank"))->setCurrentIndex(2);
        const QRect place = visibleFaults()->geometry();
        QTest::keyClick(visibleFaults(), Qt::Key_Escape);
        QVERIFY(!visibleFaults());
        QTest::keyClick(&bench.window, Qt::Key_F9);
        QVERIFY(visibleFaults());
        QCOMPARE(visibleFaults()->geometry(), place);
        QVERIFY(bench.window.close());
        QVERIFY(!visibleFaults());
        workbench::WorkbenchWindow next(bench.folder, bench.settings, bench.languages);
        next.show();
        next.activateWindow();
        QTRY_VERIFY(next.isActiveWindow());
        QTest::keyClick(&next, Qt::Key_F9);
        QVERIFY(visibleFaults());
        QCOMPARE(visibleFaults()->geometry(), place);
        QCOMPARE(visibleFaults()->findChild<QComboBox*>(QStringLiteral("comboBox_Tank"))->currentIndex(), 2);
        visibleFaults()->move(5000, -70);
        QTest::keyClick(visibleFaults(), Qt::Key_Escape);
        QTest::keyClick(&next, Qt::Key_F9);
        QVERIFY(
            QGuiApplication::primaryScreen()->availableGeometry().contains(visibleFaults()->frameGeometry()));
    }

    // The window that they were brought over may go while a box is open: they do not go with the box.
    void outliveTheirWindow()
    {
        Bench bench;
        QVERIFY(bench.start());
        QWidget telemetry;
        QVERIFY(callsFaults(telemetry));
        QDialog box;
        box.setModal(true);
        box.show();
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &box);
        telemetry.hide();
        box.hide();
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &bench.window);
        // Nor with a window that goes without a box: they stay where they are, over the one below.
        telemetry.show();
        telemetry.activateWindow();
        QTRY_VERIFY(telemetry.isActiveWindow());
        QTest::keyClick(&telemetry, Qt::Key_F9);
        visibleFaults()->move(3, 5);
        const QRect place = visibleFaults()->geometry();
        telemetry.hide();
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &bench.window);
        QCOMPARE(visibleFaults()->geometry(), place);
        {
            QDialog above;
            above.setModal(true);
            above.show();
            QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &above);
        }
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &bench.window);
        QCOMPARE(visibleFaults()->geometry(), place);
        // With the last one they go.
        bench.window.hide();
        QTest::qWait(20);
        QVERIFY(!visibleFaults());
    }

    // The tank that was chosen is there in the next run, too, where the window itself has been left alone;
    // what is damaged in the settings chooses none.
    void keepTheirTank_data()
    {
        DataTable<int, int>({"kept", "shown"})
            .row("a tank", 2, 2)
            .row("none of them", 99, 0)
            .row("less", -1, 0);
    }
    void keepTheirTank()
    {
        QFETCH(int, kept);
        Bench bench;
        QByteArray layout;
        QDataStream stream(&layout, QIODevice::WriteOnly);
        stream << QRect() << kept;
        bench.settings.setLayout(QStringLiteral("dialog_Faults"), layout);
        workbench::WorkbenchWindow next(bench.folder, bench.settings, bench.languages);
        next.show();
        next.activateWindow();
        QTRY_VERIFY(next.isActiveWindow());
        QTest::keyClick(&next, Qt::Key_F9);
        QVERIFY(visibleFaults());
        QTEST(visibleFaults()->findChild<QComboBox*>(QStringLiteral("comboBox_Tank"))->currentIndex(),
              "shown");
        QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(visibleFaults()->geometry()));
    }

    // They go with the window that they belong to: what is told while they have the keyboard does not.
    void takeNoWarningAlong()
    {
        Bench bench;
        QVERIFY(bench.start());
        QWidget telemetry;
        QVERIFY(callsFaults(telemetry));
        QTRY_COMPARE(QApplication::activeWindow(), visibleFaults());
        workbench::showWarning(QStringLiteral("Saved in part"), &bench.window);
        const QPointer<QWidget> box = QApplication::activeModalWidget();
        QVERIFY(box);
        QTRY_COMPARE(visibleFaults()->parentWidget(), box.data());
        QTest::qWait(20);
        QVERIFY(box && box->isVisible());
        box->close();
    }

    // Where there is no room beside a window its buttons stay free.
    void coversNoButtons()
    {
        Bench bench;
        QVERIFY(bench.start());
        QDialog configuration;
        configuration.setModal(true);
        configuration.setGeometry(QGuiApplication::primaryScreen()->availableGeometry());
        const QRect inside = configuration.rect();
        for (const int y : {0, inside.center().y(), inside.bottom() - 20})
            (new QPushButton(&configuration))->setGeometry(inside.right() - 60, y, 60, 20);
        configuration.show();
        QTRY_VERIFY(configuration.isActiveWindow());
        QTest::keyClick(&configuration, Qt::Key_F9);
        QVERIFY(visibleFaults());
        for (const QPushButton* button : configuration.findChildren<QPushButton*>()) {
            if (button->window() == &configuration)
                QVERIFY(
                    !visibleFaults()->geometry().intersects({button->mapToGlobal(QPoint()), button->size()}));
        }
    }

    // Nor what a box asks, as long as there is room elsewhere.
    void coversNoQuestion()
    {
        Bench bench;
        QVERIFY(bench.openFaults());
        visibleFaults()->move(3, 5);
        QMessageBox question(QMessageBox::Question, {}, QString(8, QLatin1Char('\n')), QMessageBox::Yes,
                             &bench.window);
        question.show();
        // Its words alone are below them.
        question.move(0, visibleFaults()->frameGeometry().bottom() - 40);
        QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &question);
        QVERIFY(!visibleFaults()->frameGeometry().intersects(question.frameGeometry()));
    }

    // What is no question to the tracker does not bring them up, nor does what came up after it.
    void faultsComeUninvitedForTheTrackerAlone()
    {
        Bench bench;
        QVERIFY(bench.start());
        const auto ask = [&bench] {
            Q_EMIT bench.window.session().link().passed(vlk::Direction::ToHost, 2242, nullptr, nullptr);
        };
        QDialog modal;
        modal.setModal(true);
        modal.setGeometry(0, 40, 200, 100);
        modal.show();
        ask();
        {
            QDialog serverTest;
            serverTest.setModal(true);
            serverTest.setGeometry(0, 40, 200, 100);
            serverTest.show();
            QTest::qWait(workbench::AnswerWatch::kNoticeMs + 100);
            QVERIFY(!visibleFaults());
        }
        ask();
        QTRY_VERIFY(visibleFaults());
        QWidget* faults = visibleFaults();
        const QRect place = faults->geometry();
        QCOMPARE(faults->parentWidget(), &modal);
        QVERIFY(faults->testAttribute(Qt::WA_ShowWithoutActivating));
        // Beside the modal window they take the mouse, where the panel of the main window is out of reach.
        const auto click = [](QWidget* window, const char* name) {
            auto* box = window->findChild<QAbstractButton*>(QLatin1String(name));
            const QPoint at = box->mapTo(window, QPoint(8, box->height() / 2));
            QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at);
        };
        const auto silent = [&] { return bench.window.session().tracker().faults().silence; };
        click(faults, "checkBox_Silence");
        QTRY_VERIFY(silent());
        auto* tabs = bench.window.findChild<QTabWidget*>(QStringLiteral("tabWidget_Main"));
        tabs->setCurrentIndex(2);
        QVERIFY(tabs->findChild<QAbstractButton*>(QStringLiteral("checkBox_Silence"))->isChecked());
        click(&bench.window, "checkBox_Silence");
        QTest::qWait(20);
        QVERIFY(silent());
        // Another modal window comes over it, gets them, by the key with the keyboard, and goes.
        {
            QDialog above;
            above.setModal(true);
            above.show();
            QTRY_VERIFY(visibleFaults() && visibleFaults()->parentWidget() == &above);
            above.activateWindow();
            QTRY_VERIFY(above.isActiveWindow());
            QTest::keyClick(&above, Qt::Key_F9);
            QVERIFY(visibleFaults());
            QCOMPARE(visibleFaults()->parentWidget(), &above);
        }
        QTRY_VERIFY(visibleFaults());
        QCOMPARE(visibleFaults()->parentWidget(), &modal);
        // What is said of the tracker hides no control.
        QTRY_VERIFY(visibleFaults()->findChild<QWidget*>(QStringLiteral("label_FaultsTrouble"))->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(visibleFaults()->geometry(), place);
        const auto* last = visibleFaults()->findChild<QWidget*>(QStringLiteral("spinBox_Delay"));
        QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
        modal.close();
        QVERIFY(!visibleFaults());
        click(&bench.window, "checkBox_Silence");
        QTRY_VERIFY(!silent());
    }
};

QTEST_MAIN(FaultsWindowTest)
#include "tst_faults_window.moc"
