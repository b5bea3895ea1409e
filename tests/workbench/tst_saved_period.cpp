// Saving a period of records from a tracker with faults.

#include "faulty_tracker.h"
#include "support/data_table.h"
#include "window/answer_watch.h"
#include "window/end_signals.h"

#include <csignal>

class SavedPeriodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        failOnUnfilledTexts();
    }

    // Behind a save the window takes no record that it has not asked for.
    void saysThatTheValuesAreFromBefore()
    {
        Bench bench;
        bench.prepare(Period);
        bench.take(Period);
        QTRY_VERIFY_WITH_TIMEOUT(bench.status().startsWith(QLatin1String("Saved: ")), 20'000);
        QTRY_COMPARE(Bench::notice(), bench.status());
        // Not any more when another file is asked for.
        QFile::remove(bench.file());
        bench.collect();
        QVERIFY(!Bench::notice().startsWith(QLatin1String("Saved: ")));
        bench.tracker().setFaults({});
        QTRY_VERIFY_WITH_TIMEOUT(bench.status().startsWith(QLatin1String("Saved: ")), 20'000);
        bench.take(Output);
        QTRY_COMPARE(Bench::notice(),
                     QStringLiteral("Output 1 is switched on. The values on show are from before: "
                                    "\"Current\" brings new ones."));
        bench.take(Live);
        QTRY_COMPARE(Bench::telemetry()->findChild<QLabel*>(QStringLiteral("label_Out_Value_1"))->text(),
                     QStringLiteral("On"));
        bench.take(Mileage);
        QTRY_VERIFY2(bench.status().startsWith(QLatin1String("Mileage set")), qPrintable(bench.status()));
        QVERIFY2(!bench.status().contains(QLatin1String("from before")), qPrintable(bench.status()));
    }

    // How much there is of the period stands in the window of telemetry, in a box and in the status line.
    void savedInPart_data()
    {
        DataTable<QString> table({"by"});
        for (const char* by : {"unplugged", "cancelled", "ended"})
            table.row(by, QLatin1String(by));
    }
    void savedInPart()
    {
        QFETCH(QString, by);
        Bench bench;
        bench.beginSave();
        QWidget* view = Bench::telemetry();
        if (by == QLatin1String("unplugged"))
            bench.tracker().setFaults({.unplug = true});
        else if (by == QLatin1String("cancelled"))
            Bench::press(view, "pushButton_Save_Cancel");
        else
            bench.endSave();
        static const QRegularExpression held(
            QStringLiteral("\\d+ of [\\d,]+ records, until \\d\\d:\\d\\d:\\d\\d \\d\\d\\.\\d\\d\\.\\d{4} "));
        QTRY_VERIFY2(bench.status().contains(held), qPrintable(bench.everything()));
        QTRY_VERIFY2(bench.boxes.contains(bench.status()), qPrintable(bench.everything()));
        const QString told = bench.status();
        bench.tracker().setFaults({});
        QVERIFY(told.startsWith(QStringLiteral("Saved in part: ") + bench.file()));
        QCOMPARE(bench.boxes, QStringList(told));
        // The file ends with the end of the period, whatever is missing in front of that.
        QVERIFY2(told.contains(QLatin1String(", and the last of the period")), qPrintable(told));
        QCOMPARE(told.contains(QLatin1String("was unplugged meanwhile")), by == QLatin1String("unplugged"));
        QVERIFY(!bench.everything().contains(QLatin1String("Saved: ")) && QFile::exists(bench.file()));
        bench.tracker().attach();
        bench.action("action_Telemetry")->trigger();
        auto* line = view->findChild<QLabel*>(QStringLiteral("label_SavedInPart"));
        QVERIFY(line->isVisible() &&
                line->text().endsWith(QLatin1String(", and the last of the period. File: period.xml")));
        bench.tracker().setFaults({.shortAnswers = true});
        bench.take(Live);
        QTRY_COMPARE(Bench::notice(), bench.status());
        QVERIFY(bench.status().contains(QLatin1String("cut short")));
        QCOMPARE(held.match(line->text()).captured(), held.match(told).captured());
        bench.window.setLanguage(QStringLiteral("ru"));
        QVERIFY(line->text().contains(QStringLiteral("Сохранено не целиком")));
        Bench::press(view, "label_SavedInPart_Close");
        QVERIFY(!line->isVisible());
    }

    // What was asked in silence is asked again, and its answer counts once however often it comes.
    void goesOnByItself()
    {
        Bench bench;
        bench.beginSave();
        bench.tracker().setFaults({.silence = true});
        const QString again = QStringLiteral("request 2302 was sent to the tracker again");
        QTRY_VERIFY_WITH_TIMEOUT(bench.logged(again) > 1, 10'000);
        bench.tracker().setFaults({.delayMs = workbench::AnswerWatch::kPatienceMs + 500});
        QTRY_VERIFY_WITH_TIMEOUT(bench.logged(QStringLiteral("Message 2303 came twice")) > 0, 20'000);
        // What cannot be right is not saved.
        bench.tracker().setFaults({.garbledAnswers = true});
        QTRY_VERIFY(Bench::notice().contains(QLatin1String("2303 from the tracker: damaged. Such records")));
        const int records =
            Bench::telemetry()->findChild<QProgressBar*>(QStringLiteral("progressBar_Time"))->maximum() + 1;
        QVERIFY(Bench::telemetry()->findChild<QWidget*>(QStringLiteral("label_WindowNotice_Action1")));
        bench.tracker().setFaults({});
        QTRY_VERIFY2_WITH_TIMEOUT(bench.status().startsWith(QLatin1String("Saved: ")),
                                  qPrintable(bench.everything()), 20'000);
        QFile file(bench.file());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count("<Page "), records);
        QCOMPARE(Bench::notice(), bench.status());
        QTRY_COMPARE_WITH_TIMEOUT(Bench::notice(), QString(), 10'000);
    }

    // A cancel in silence is answered at once, and what the host offers to end the save stays on show.
    void cancelledInSilence()
    {
        Bench bench;
        bench.beginSave();
        bench.tracker().setFaults({.silence = true});
        QWidget* view = Bench::telemetry();
        const auto* place = view->findChild<QWidget*>(QStringLiteral("noticeBar"));
        const int before = place->height();
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("goes on by itself")), 10'000);
        QCOMPARE(place->height(), before); // enough for a notice with a button
        QVERIFY(!view->findChild<QWidget*>(QStringLiteral("label_WindowNotice_Close"))->isVisible());
        QTest::mouseClick(view->findChild<QWidget*>(QStringLiteral("pushButton_Save_Cancel")),
                          Qt::LeftButton);
        QVERIFY(view->findChild<QLabel*>(QStringLiteral("label_SavedInPart"))
                    ->text()
                    .contains(QLatin1String("ends with the next record")));
        // The host says so at once, too.
        QCoreApplication::processEvents();
        QVERIFY2(Bench::notice().contains(QLatin1String("ends with its answer")),
                 qPrintable(Bench::notice()));
        Bench::press(view, "label_SavedInPart_Action1");
        QTRY_VERIFY2(bench.status().startsWith(QLatin1String("Saved in part: ")),
                     qPrintable(bench.everything()));
        QVERIFY(!Bench::notice().contains(QLatin1String("cancelled")));
    }

    // Where a question has ended it, nothing is waited for any more either.
    void endedByKeyInSilence()
    {
        Bench bench;
        bench.beginSave();
        bench.tracker().setFaults({.silence = true});
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("goes on by itself")), 10'000);
        QTest::keyClick(Bench::telemetry(), Qt::Key_Escape);
        QVERIFY(bench.boxes.constFirst().contains(QLatin1String("records have come")));
        QTRY_VERIFY2(bench.status().startsWith(QLatin1String("Saved in part: ")),
                     qPrintable(bench.everything()));
        QVERIFY2(!Bench::notice().contains(QLatin1String("No answer")), qPrintable(Bench::notice()));
    }

    // What has come is not lost when the desktop's session ends, which may still be called off: all stays
    // open.
    void endedByTheDesktop()
    {
        Bench bench;
        const workbench::EndSignals end(bench.window);
        bench.beginSave();
        QObject session; // of which nobody asks anything
        QMetaObject::invokeMethod(qApp, "commitDataRequest", QGenericArgument("QSessionManager&", &session));
        QFile saved(bench.file());
        QVERIFY(saved.open(QIODevice::ReadOnly) && saved.readAll().count("<Page ") > 2);
        QTRY_VERIFY2(bench.status().startsWith(QLatin1String("Saved in part: ")),
                     qPrintable(bench.everything()));
        QVERIFY(Bench::telemetry()->isVisible() && bench.window.isVisible());
    }

    // Nor when the program is told to end, and the next run tells of it.
    void endedByTheSystem()
    {
        QStringList left;
        QString file;
        {
            Bench bench;
            const workbench::EndSignals end(bench.window);
            // A table over which its window asks when it is closed holds nothing up.
            bench.prepare(CloseOverTable);
            bench.collect();
            file = bench.file();
            std::raise(SIGTERM);
            QTimer::singleShot(10'000, &bench.window, [] { QCoreApplication::exit(1); });
            QCOMPARE(QCoreApplication::exec(), 0);
            QFile saved(file);
            QVERIFY(saved.open(QIODevice::ReadOnly) && saved.readAll().count("<Page ") > 2);
            QVERIFY(!Bench::telemetry());
            QCOMPARE(bench.settings.recentFiles().value(0).path, file);
            left = bench.settings.takeCutShort();
        }
        OpenedWorkbench next;
        next.settings.setCutShort(left);
        QVERIFY(next.start(VLK_PLUGIN));
        const QString told = next.text("label_Notice");
        QVERIFY2(
            told.contains(QLatin1String("was ended while a period was being saved. Saved in part: ") + file),
            qPrintable(told));
        QCOMPARE(next.settings.takeCutShort(), QStringList());
        next.window.close();
    }

    // Before there is a file there is nothing to be saved.
    void endsASaveThatNeverBegan()
    {
        Bench bench;
        bench.prepare(Period);
        bench.tracker().setFaults({.silence = true});
        bench.take(Period);
        bench.endSave();
        QVERIFY(bench.status().contains(QLatin1String("No record was saved")));
        QCOMPARE(Bench::notice(), bench.status());
        QVERIFY(Bench::telemetry()->findChild<QWidget*>(QStringLiteral("groupBox_Btn_Save"))->isEnabled());
    }
};

QTEST_MAIN(SavedPeriodTest)
#include "tst_saved_period.moc"
