// Notices of faults over the windows that are worked in, and what comes in between while work is under way.

#include "faulty_tracker.h"
#include "support/data_table.h"
#include "support/files.h"

class WorkUnderWayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        failOnUnfilledTexts();
    }

    // A notice that was closed is not the last word of a silence in which the user asks on.
    void comesBackInTheSameSilence()
    {
        Bench bench;
        bench.prepare(Live);
        bench.tracker().setFaults({.silence = true});
        bench.take(Live);
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("No answer")), 10'000);
        Bench::press(Bench::telemetry(), "label_WindowNotice_Close");
        QCOMPARE(Bench::notice(), QString());
        bench.take(Live);
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("No answer")), 20'000);
    }

    // The notice stands on the window that is worked in.
    void followsTheActiveWindow()
    {
        Bench bench;
        bench.prepare(Live);
        bench.tracker().setFaults({.garbledAnswers = true});
        Bench::press(Bench::telemetry(), "pushButton_FuelSensor");
        QWidget* calibration = Bench::calibration();
        QVERIFY(calibration);
        const auto noticeOn = [](const QWidget* window) -> QWidget* {
            auto* bar =
                window->findChild<QFrame*>(QStringLiteral("frame_WindowNotice"), Qt::FindDirectChildrenOnly);
            return bar && bar->isVisible() ? bar : nullptr;
        };
        for (QWidget* window : {calibration, Bench::telemetry(), calibration}) {
            window->activateWindow();
            QTRY_VERIFY_WITH_TIMEOUT(noticeOn(window), 10'000);
        }
        QVERIFY2(bench.status().contains(QLatin1String("2247 from the tracker: damaged")),
                 qPrintable(bench.status()));
        QVERIFY(calibration->findChild<QLineEdit*>(QStringLiteral("lineEdit_Param"))->text().isEmpty());
        bench.tracker().setFaults({});
        QTRY_COMPARE_WITH_TIMEOUT(bench.status(), QStringLiteral("Ready"), 10'000);
        // What became of a command stands where it was given.
        bench.take(Output);
        QTRY_VERIFY(bench.status().contains(QLatin1String("Output 1")));
        QTRY_VERIFY(noticeOn(Bench::telemetry()) && !noticeOn(calibration));
        // The notice leaves the field free that is typed into.
        auto* title = calibration->findChild<QLineEdit*>(QStringLiteral("lineEdit_Title"));
        title->setFocus();
        Bench::press(Bench::telemetry(), "pushButton_Get_Current");
        bench.tracker().setFaults({.silence = true});
        // Where nobody manages windows, the one that goes leaves its own active.
        QTRY_VERIFY_WITH_TIMEOUT((calibration->activateWindow(), noticeOn(calibration)), 20'000);
        const QRect field(title->mapToGlobal(QPoint()), title->size());
        QVERIFY(!noticeOn(calibration)->geometry().intersects(field));
    }

    // The host's notice stands over the window's own, which waits behind it: nothing moves under the mouse.
    void movesNothing()
    {
        Bench bench;
        bench.prepare(Live);
        QWidget* view = Bench::telemetry();
        Bench::press(view, "pushButton_Clear");
        const auto* own = view->findChild<QFrame*>(QStringLiteral("noticeBar"));
        QVERIFY(own->isVisible());
        const auto* button = view->findChild<QWidget*>(QStringLiteral("pushButton_Out_On"));
        const QPoint before = button->mapToGlobal(QPoint());
        bench.take(Output);
        QTRY_VERIFY(Bench::notice().contains(QLatin1String("Output 1")));
        const auto* bar = view->findChild<QFrame*>(QStringLiteral("frame_WindowNotice"));
        QCOMPARE(bar->findChild<QToolButton*>(QStringLiteral("label_NoticePlace"))->text(),
                 QStringLiteral("1 of 2"));
        QCOMPARE(button->mapToGlobal(QPoint()), before);
        Bench::press(view, "label_WindowNotice_Close");
        QTRY_VERIFY(Bench::notice().isEmpty() && own->isVisible());
        QCOMPARE(button->mapToGlobal(QPoint()), before);

        // What the one behind offers can be had elsewhere.
        Bench::press(view, "pushButton_FuelSensor");
        QWidget* calibration = Bench::calibration();
        auto* name = calibration->findChild<QWidget*>(QStringLiteral("A3"))
                         ->findChild<QLineEdit*>(QStringLiteral("lineEdit_Name"));
        QApplication::setActiveWindow(calibration);
        name->setFocus();
        QTest::keyClicks(name, "left");
        QTest::keyClick(name, Qt::Key_Tab);
        const auto* save = calibration->findChild<QWidget*>(QStringLiteral("pushButton_Save_Xml"));
        QTRY_VERIFY(!save->isEnabled() && !save->toolTip().isEmpty());
        bench.tracker().setFaults({.silence = true});
        QTRY_VERIFY_WITH_TIMEOUT((calibration->activateWindow(), save->isEnabled()), 20'000);
        bench.tracker().setFaults({});
        QTRY_VERIFY_WITH_TIMEOUT(!save->isEnabled(), 20'000);
    }

    // The program does not end over an export unasked.
    void asksOverAnExport()
    {
        Bench bench;
        const QByteArray page =
            "<Page type=\"176\" ver=\"30\" format=\"1\">\n<NumPage>1</NumPage>\n</Page>\n";
        constexpr int kPages = 1'000'000; // the export lasts longer than both questions
        const QString large =
            writeFile(bench.root.filePath(QStringLiteral("large.xml")), page.repeated(kPages));
        bench.window.session().link().showStoredFile(large, 1);
        QWidget* records = Bench::pluginWindow("VLK_Widget_Tmi_Table");
        QVERIFY(records);
        const auto* table = records->findChild<QTableView*>(QStringLiteral("tableWidget"));
        QTRY_COMPARE_WITH_TIMEOUT(table->model()->rowCount(), kPages, 60'000);
        QTimer::singleShot(0, [] { Bench::press(QApplication::activeModalWidget(), "pushButton_SaveAs"); });
        Bench::press(records, "pushButton_Export");
        QTRY_VERIFY(records->findChild<QWidget*>(QStringLiteral("progressBar_Work"))->isVisible());
        bench.agrees = false;
        QVERIFY(!bench.window.close());
        QVERIFY(bench.window.isVisible() && records->isVisible());
        QCOMPARE(bench.over, records);
        bench.agrees = true;
        QVERIFY(bench.window.close());
        QVERIFY(!QFile::exists(bench.file()));
    }

    // A filter knows events by their words in both languages, and stands in those of the program.
    void filtersInBothLanguages()
    {
        Bench bench;
        const QByteArray file =
            "<Page type=\"176\" ver=\"30\" format=\"111\">\n<NumPage>1</NumPage>\n<Code>%1</Code>\n"
            "<Time>1738400400</Time>\n</Page>\n";
        const QString path =
            writeFile(bench.root.filePath(QStringLiteral("two.xml")),
                      QByteArray(file).replace("%1", "40") + QByteArray(file).replace("%1", "2"));
        bench.window.session().link().showStoredFile(path, 1);
        QWidget* records = Bench::pluginWindow("VLK_Widget_Tmi_Table");
        auto* filter = records->findChild<QLineEdit*>(QStringLiteral("lineEdit_Filter"));
        const auto* table = records->findChild<QTableView*>(QStringLiteral("tableWidget"));
        filter->setText(QStringLiteral("Code = \"начало заправки\""));
        QTest::keyClick(filter, Qt::Key_Return);
        QCOMPARE(table->model()->rowCount(), 1);
        bench.window.setLanguage(QStringLiteral("ru"));
        QCOMPARE(filter->text(), QStringLiteral("Событие = \"Начало заправки\""));
        bench.window.setLanguage(QStringLiteral("en"));
        QCOMPARE(filter->text(), QStringLiteral("Event = \"Start of refuelling\""));
    }

    // What a calibration file holds less than the table stands first, by its rows, with the number of all
    // that is to be told.
    void tellsWhatAFileHasCut()
    {
        Bench bench;
        bench.prepare(Live);
        Bench::press(Bench::telemetry(), "pushButton_FuelSensor");
        QWidget* calibration = Bench::calibration();
        const auto* form = calibration->findChild<QWidget*>(QStringLiteral("A3"));
        const auto* param = form->findChild<QLineEdit*>(QStringLiteral("lineEdit_Param"));
        auto* volume = form->findChild<QLineEdit*>(QStringLiteral("lineEdit_Volume"));
        for (const char* litres : {"20", "40", "40,5", "60.5"}) {
            QTRY_VERIFY(!param->text().isEmpty());
            volume->setFocus();
            QTest::keyClicks(volume, litres);
            QTest::keyClick(volume, Qt::Key_Return);
        }
        Bench::press(calibration, "pushButton_Save_Xml");
        QTRY_VERIFY2(bench.status().contains(QStringLiteral("40, 40.5 → 40; 60.5 → 60.")),
                     qPrintable(bench.status()));
        const auto* notice = calibration->findChild<QLabel*>(QStringLiteral("label_WindowNotice"));
        QTRY_COMPARE(notice->text(), bench.status());
        QVERIFY(bench.status().contains(bench.file()));
        const auto* place =
            notice->parentWidget()->findChild<QToolButton*>(QStringLiteral("label_NoticePlace"));
        QCOMPARE(place->text(), QStringLiteral("1 of 2"));
        // The name is to be saved, too.
        QApplication::setActiveWindow(calibration);
        auto* name = form->findChild<QLineEdit*>(QStringLiteral("lineEdit_Name"));
        name->setFocus();
        QTest::keyClicks(name, "left");
        QTest::keyClick(name, Qt::Key_Tab);
        QCOMPARE(place->text(), QStringLiteral("1 of 3"));
    }

    // The notice moves nothing in the configuration either, where a window is not too low for it.
    void movesNoPage()
    {
        Bench bench;
        bench.prepare(Write);
        QWidget* configuration = Bench::configuration();
        const auto* field = configuration->findChild<QWidget*>(QStringLiteral("lineEdit_Name"));
        for (const int height : {600, 500}) {
            configuration->setMinimumSize(0, 0);
            configuration->resize(1024, height);
            QCoreApplication::processEvents();
            const QPoint before = field->mapToGlobal(QPoint());
            QFile::remove(bench.file());
            Bench::press(configuration, "pushButton_SaveToFile");
            QTRY_VERIFY(Bench::notice().startsWith(QLatin1String("Saved: ")));
            QCoreApplication::processEvents();
            QCOMPARE(field->mapToGlobal(QPoint()), before);
            // Nor does it hide the tabs.
            const auto* notice = configuration->findChild<QWidget*>(QStringLiteral("frame_WindowNotice"));
            const auto* tabs = configuration->findChild<QTabBar*>();
            QVERIFY(notice->geometry().bottom() < tabs->mapToGlobal(tabs->rect().center()).y());
            Bench::press(configuration, "label_WindowNotice_Close");
            QTRY_COMPARE(field->mapToGlobal(QPoint()), before);
        }
        // Nor what is found, where it stands over the row of the search.
        QFile::remove(bench.file());
        Bench::press(configuration, "pushButton_SaveToFile");
        QTRY_VERIFY(Bench::notice().startsWith(QLatin1String("Saved: ")));
        const auto* notice = configuration->findChild<QWidget*>(QStringLiteral("frame_WindowNotice"));
        QApplication::setActiveWindow(configuration);
        auto* find = configuration->findChild<QLineEdit*>(QStringLiteral("lineEdit_Find"));
        find->setFocus();
        QTest::keyClicks(find, "port");
        const auto* hits = configuration->findChild<QWidget*>(QStringLiteral("listWidget_Found"));
        QTRY_VERIFY(hits->isVisible());
        const QRect list(hits->mapToGlobal(QPoint()), hits->size());
        QTRY_VERIFY(!notice->geometry().intersects(list));
    }

    void refusesWhatDestroys_data()
    {
        DataTable<int, QString>({"during", "said"})
            .row("a save", Period, "not sent: a period is being saved")
            .row("automatic requests", Live, "not sent: records are requested automatically")
            .row("a second thought", Output, "nothing was sent to the tracker");
    }
    void refusesWhatDestroys()
    {
        QFETCH(int, during);
        QFETCH(QString, said);
        Bench bench;
        bench.agrees = false;
        if (during == Period)
            bench.beginSave();
        else
            bench.prepare(Live);
        auto* automatic = Bench::telemetry()->findChild<QCheckBox*>(QStringLiteral("checkBox_Get_Auto_TMI"));
        automatic->setChecked(during == Live);
        bench.take(Clear);
        QTRY_VERIFY2(bench.status().contains(said), qPrintable(bench.everything()));
        QCOMPARE(Bench::notice(), bench.status());
        QCOMPARE(bench.boxes.size(), during == Output ? 1 : 0);
        // What is newer stands before it.
        bench.tracker().setFaults({.silence = true});
        bench.take(Live);
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(QLatin1String("No answer")), 10'000);
        bench.tracker().setFaults({});
        // A reason that is gone is told no longer.
        automatic->setChecked(false);
        if (during == Period)
            Bench::press(Bench::telemetry(), "pushButton_Save_Cancel");
        const QString result = during == Period ? QStringLiteral("Saved in part") : QStringLiteral("Ready");
        QTRY_VERIFY2_WITH_TIMEOUT(during == Output ||
                                      (bench.status().startsWith(result) && Bench::notice().isEmpty()),
                                  qPrintable(bench.everything()), 10'000);
        QCOMPARE(bench.logged(QStringLiteral("ClearedRecord")), 0);
    }

    // What is pressed after a command that was not sent, and is answered, is not told to have been refused.
    void endsWhatWasRefusedWithAnAnswer()
    {
        Bench bench;
        bench.beginSave();
        bench.take(Clear);
        QTRY_VERIFY(Bench::notice().contains(QLatin1String("not sent: a period is being saved")));
        Bench::press(Bench::telemetry(), "pushButton_TM");
        QTRY_VERIFY(Bench::notice().isEmpty());
        QVERIFY(bench.window.session().link().runningWork().saving != 0);
        bench.endSave();
    }

    // What blocks an engine on the road is asked for first, and nothing is sent without a yes.
    void asksBeforeItSwitchesOnTheRoad_data()
    {
        DataTable<bool, bool, bool, QString>({"moves", "ignition", "silence", "asked"})
            .row("driving", true, true, false,
                 "is moving at [1-9]\\d*\u00A0km/h\\. Output 1 will be switched on")
            .row("idling", false, true, false, "^The ignition is on\\. Output 1 will be switched on")
            .row("parked", false, false, false, "")
            .row("silent", true, true, true,
                 "could not be read from the tracker\\. Output 1 will be switched on");
    }
    void asksBeforeItSwitchesOnTheRoad()
    {
        QFETCH(bool, moves);
        QFETCH(bool, ignition);
        QFETCH(bool, silence);
        QFETCH(QString, asked);
        Bench bench;
        bench.prepare(Live);
        // The next minute of that kind.
        const auto fits = [&] {
            const std::optional<tracker::Present> present = bench.tracker().readPresent();
            return present && (present->speed >= 1) == moves && present->ignition == ignition;
        };
        QDateTime time = QDateTime::currentDateTimeUtc();
        for (int minute = 0; minute < 2 * 24 * 60 && !fits(); ++minute) {
            time = time.addSecs(60);
            bench.tracker().setClock([time] { return time; });
        }
        QVERIFY(fits());
        bench.tracker().setFaults({.silence = silence});
        bench.agrees = false;
        bench.take(Output);
        const QString result = asked.isEmpty() ? QStringLiteral("Output 1 is switched on")
                                               : QStringLiteral("nothing was sent to the tracker");
        QTRY_VERIFY2(bench.status().contains(result), qPrintable(bench.everything()));
        QCOMPARE(bench.boxes.size(), asked.isEmpty() ? 0 : 1);
        bench.tracker().setFaults({});
        QCOMPARE(bench.tracker().readPresent()->outputs & 1, asked.isEmpty() ? 1 : 0);
        if (asked.isEmpty())
            return;
        QVERIFY2(bench.boxes.first().contains(QRegularExpression(asked)), qPrintable(bench.boxes.first()));
        QCOMPARE(bench.over, Bench::telemetry());
        bench.agrees = true;
        bench.take(Output);
        QTRY_VERIFY(bench.tracker().readPresent()->outputs & 1);
    }

    // The question goes with the cable, whatever tracker comes next, and what it was about is told.
    void unpluggedOverAQuestion_data()
    {
        DataTable<int, QByteArray>({"step", "over"})
            .row("clear", Clear, "QMessageBox")
            .row("mileage", Mileage, "QMessageBox")
            .row("mileage typed", Mileage, "QInputDialog")
            .row("output", Output, "QMessageBox");
    }
    void unpluggedOverAQuestion()
    {
        QFETCH(int, step);
        QFETCH(QByteArray, over);
        Bench bench;
        bench.prepare(Live);
        if (step == Output)
            bench.tracker().setFaults({.silence = true}); // so that it asks at any hour
        bench.unplugsOver = over.constData();
        bench.take(Step(step));
        QTRY_VERIFY(!Bench::telemetry());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(bench.boxes, QStringList());
        if (over == "QMessageBox")
            QTRY_VERIFY2(bench.status().contains(QLatin1String("not sent: the tracker is not attached")),
                         qPrintable(bench.everything()));
    }

    // Who presses on in a silence is told of it again, with the offer to end the save.
    void refusalGivesWayToSilence()
    {
        Bench bench;
        bench.beginSave();
        bench.tracker().setFaults({.silence = true});
        const QString silent = QStringLiteral("the save goes on by itself");
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(silent), 10'000);
        bench.take(Clear);
        QTRY_VERIFY(Bench::notice().contains(QLatin1String("not sent: a period is being saved")));
        QTRY_VERIFY_WITH_TIMEOUT(Bench::notice().contains(silent), 12'000);
    }

    // A reading that failed is asked for again, and an old one is not on show meanwhile.
    void asksForReadingsAnew()
    {
        Bench bench;
        bench.prepare(Live);
        Bench::press(Bench::telemetry(), "pushButton_FuelSensor");
        const auto* sensor = Bench::calibration()->findChild<QWidget*>(QStringLiteral("A3"));
        const auto* value = sensor->findChild<QLineEdit*>(QStringLiteral("lineEdit_Param"));
        for (const bool isSilent : {false, true, false}) {
            bench.tracker().setFaults({.silence = isSilent});
            QTRY_VERIFY_WITH_TIMEOUT(value->text().isEmpty() == isSilent, 6000);
        }
    }

    void detachedByTheUser()
    {
        Bench bench;
        bench.prepare(Live);
        bench.action("action_Cable")->trigger();
        QVERIFY(!Bench::telemetry());
        QTRY_VERIFY2(bench.status().contains("detached, so its telemetry window was closed"),
                     qPrintable(bench.status()));
        QCOMPARE(bench.boxes, QStringList());
        bench.action("action_Cable")->trigger();
        bench.action("action_Telemetry")->trigger();
        QTRY_COMPARE(bench.status(), QStringLiteral("Ready"));
    }
};

QTEST_MAIN(WorkUnderWayTest)
#include "tst_work_under_way.moc"
