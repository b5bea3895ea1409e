// The windows round a write, worked with keys: what there is to do first, review, progress and report.

#include "answered_dialogs.h"
#include "road_bench.h"
#include "support/letters.h"

using workbench::RoadReport;

using Bench = RoadBench;

class RoadWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void offersThreeThingsToDo()
    {
        Bench bench;
        QApplication::setActiveWindow(&bench.window);
        auto* read = Bench::find<QCommandLinkButton>("commandLink_Read");
        QCOMPARE(QApplication::focusWidget(), read);
        QVERIFY(read->description().contains("860000000071060 is attached"));
        bench.action("action_Cable")->trigger();
        QVERIFY(!read->isEnabled() && Bench::find("commandLink_Open")->isEnabled());
        QTest::keyClick(Bench::find("commandLink_Look"), Qt::Key_Return);
        QVERIFY(bench.session().tracker().attached());
        QVERIFY(Bench::comes("pushButton_Get_Current"));
        QTest::keyClick(read, Qt::Key_Return);
        QVERIFY(Bench::comes("lineEdit_Name"));
    }

    // The system may give a window the keyboard and not say so.
    void takesKeysWhenNoneIsActive()
    {
        Bench bench;
        {
            QWidget other;
            other.show();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        }
        QTRY_VERIFY(!QGuiApplication::focusWindow() && !QApplication::activeWindow());
        QTest::keyClick(bench.window.windowHandle(), Qt::Key_H, Qt::ControlModifier);
        QVERIFY(Bench::comes("dialog_History"));
    }

    void reportFollowsTheLanguage()
    {
        Bench bench;
        const auto letters = [&bench](const char* window) {
            QString shared;
            for (const char* language : {"ru", "en"}) {
                bench.window.setLanguage(language);
                shared += sharedLetters(Bench::find(window));
            }
            return shared;
        };
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        QCOMPARE(letters("dialog_Review"), QString());
        Bench::press("pushButton_Write");
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(letters("dialog_Report"), QString());
        QTest::keyClick(Bench::find("dialog_Report"), Qt::Key_Return);
        bench.session().link().send(vlk::Message::CloseWindows);
        const auto* model = bench.window.findChild<QTableView*>("tableView_Report")->model();
        const auto line = [model] {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells << model->index(0, column).data().toString();
            return cells;
        };
        const QStringList english = line();
        QCOMPARE(english.last(), QString("Van 1"));
        bench.window.setLanguage("ru");
        QCOMPARE(line().mid(1), english.mid(1));
        QTRY_VERIFY(line().first() != english.first());
        bench.window.setLanguage("en");
        QTRY_COMPARE(line(), english);
    }

    // The field is red, and what is written is not what was typed into it.
    void tellsWhatWasRefusedAsLongAsItIs()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        // What is spelled otherwise counts as no change.
        QByteArray document = bench.session().tracker().readConfiguration().document;
        for (const auto& [port, changes] : {std::pair("04000", 0), {"4001", 1}})
            QCOMPARE(bench.session().edited().changesIn(QByteArray(document).replace("4000", port)), changes);
        auto* box = Bench::find("lineEdit_Name")->window()->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main");
        const auto type = [&box](const QString& keys) {
            QApplication::setActiveWindow(box->window());
            box->setFocus();
            box->selectAll();
            QTest::keyClicks(box, keys);
            QTest::keyClick(box, Qt::Key_Tab);
        };
        const QString refused = "Only whole numbers fit here, not \"3,5\".";
        const auto isAdvised = [&refused] {
            const auto* list = Bench::find("dialog_Review")->findChild<QListWidget*>("listWidget_Advice");
            return list && !list->findItems(refused, Qt::MatchContains).isEmpty();
        };
        const QString port = box->cleanText();
        type("3,5");
        for (const char* name : {"Van 1", "Van 2"}) {
            bench.editName(name);
            QVERIFY(Bench::isReviewed());
            // It is no advice on what the field holds, which the window counts.
            QVERIFY2(isAdvised() && !Bench::find("label_Advice"), name);
            QCOMPARE(Bench::find<QLabel>("label_Typed")->text(), QString("Not taken as typed: 1"));
            QCOMPARE(Bench::find<QToolButton>("toolButton_Advice")->text(), QString("0"));
            Bench::press("pushButton_Write");
            QVERIFY(Bench::comes("dialog_Report"));
            QVERIFY2(bench.text("label_Report").contains(refused), name);
            Bench::press("pushButton_Close");
        }
        bench.editName("Van 3");
        QVERIFY(Bench::isReviewed());
        Bench::press("pushButton_Cancel");
        // Of what cannot work one sentence, by what stands there now.
        type("70000");
        bench.editName("Van 3");
        QVERIFY(Bench::isReviewed());
        const auto lines = Bench::find("dialog_Review")
                               ->findChild<QListWidget*>("listWidget_Advice")
                               ->findItems("Port: ", Qt::MatchContains);
        QVERIFY(lines.size() == 1 && lines[0]->text().contains("65536, which does not exist"));
        // So does the report, also where it was typed before the window was opened.
        for (const char* name : {"Van 3", "Van 4"}) {
            Bench::press("pushButton_Write");
            QVERIFY(Bench::comes("dialog_Report"));
            QCOMPARE(bench.text("label_Report").count("65536, which does not exist"), 1);
            Bench::press("pushButton_Close");
            bench.session().link().send(vlk::Message::CloseWindows);
            bench.action("action_Read")->trigger();
            bench.editName(QString(name) + " again");
            QVERIFY(Bench::isReviewed());
        }
        Bench::press("pushButton_Cancel");
        box = Bench::find("lineEdit_Name")->window()->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main");
        // With what stands there already nothing is red any more.
        type(port);
        bench.editName("Van 3");
        QVERIFY(Bench::isReviewed());
        QVERIFY(!isAdvised());
        Bench::press("pushButton_Cancel");
        // Whoever wants no review gets one all the same, and why; so does the next try.
        bench.action("action_ReviewAlways")->trigger();
        bench.session().tracker().setFaults({.skipsPage = true});
        type("3,5");
        bench.editName("Van 4");
        for (const char* next : {"pushButton_Again", "pushButton_Close"}) {
            QVERIFY(Bench::isReviewed());
            QVERIFY2(isAdvised() && Bench::find("pushButton_Cancel")->hasFocus(), next);
            QVERIFY(Bench::find<QLabel>("label_Origin")
                        ->text()
                        .contains("has to be seen: a field did not take what was typed."));
            Bench::press("pushButton_Write");
            QVERIFY(Bench::comes("dialog_Report"));
            QVERIFY2(bench.text("label_Report").startsWith("Not taken") &&
                         bench.text("label_Report").contains(refused),
                     qPrintable(bench.text("label_Report")));
            Bench::press(next);
        }
    }

    // With the number on the button of the window that saved it, in either window.
    void tellsWhatASavedFileChanges()
    {
        for (const bool isFull : {true, false}) {
            Bench bench;
            QTest::keyClick(bench.window.findChild<QComboBox*>("comboBox_Window"),
                            isFull ? Qt::Key_Up : Qt::Key_Down);
            bench.action("action_Read")->trigger();
            auto* port = Bench::find<QSpinBox>("GPRSSrv_spinBox_Port_Main");
            QApplication::setActiveWindow(port->window());
            port->setFocus();
            port->selectAll();
            QTest::keyClicks(port, "5555");
            const QString path = bench.root.filePath("counted.xml");
            chooseNext(path);
            Bench::press(isFull ? "pushButton_SaveToFile" : "pushButton_Light_SaveToFile");
            const QString number = Bench::find<QToolButton>("toolButton_Differences")->text();
            QVERIFY2(number.startsWith(isFull ? "1" : "1+"), qPrintable(number));
            const QString told = "Saved: " + path + ". Differences from what was opened: " + number;
            QTRY_VERIFY2(bench.text("label_Status").contains(told), qPrintable(bench.text("label_Status")));
        }
    }

    // What is red when a file is saved is told, each field once, as a review would.
    void tellsWhatIsRedInASavedFile()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        const auto* full = Bench::find("lineEdit_Name")->window()->findChild<QWidget*>("page_Full");
        const auto type = [full](const char* name, const QString& keys) {
            auto* field = full->findChild<QWidget*>(name);
            QApplication::setActiveWindow(full->window());
            field->setFocus();
            QMetaObject::invokeMethod(field, "selectAll");
            QTest::keyClicks(field, keys);
            QTest::keyClick(field, Qt::Key_Tab);
        };
        const auto save = [&bench](const char* name) {
            chooseNext(bench.root.filePath(name));
            return messageDuring([] { Bench::press("pushButton_SaveToFile"); });
        };
        QCOMPARE(save("right.xml"), QString());
        type("Transfer_lineEdit_GSM_Pin1", "124");
        type("GPRSSrv_spinBox_Port_Main", "70000");
        type("spinBox_RegTimer", "999999");
        for (const char* name : {"red.xml", "again.xml"}) {
            const QStringList lines = save(name).split('\n');
            QVERIFY2(lines[0].contains(name), qPrintable(lines[0]));
            for (const char* field : {"PIN: ", "Port: ", "999999"})
                QVERIFY2(lines.filter(field).size() == 1, field);
        }
        type("Transfer_lineEdit_GSM_Pin1", "12x34");
        QVERIFY(save("left-out.xml").contains("PIN: This character"));
        type("Transfer_lineEdit_GSM_Pin1", "1234");
        QVERIFY(!save("mended.xml").contains("PIN: "));
    }

    // The program was killed in the middle of a write: the next one says so, and goes on from there.
    void tellsOfTheWriteThatWasCutOff()
    {
        OpenedWorkbench bench;
        workbench::HostSession& session = bench.window.session();
        RoadReport report;
        report.tracker = {"R-7106", "860000000071060", "Van"};
        report.backup = session.backups().add(report.tracker, "<DEVICE model=\"R-7106\"/>",
                                              QDateTime::currentDateTimeUtc(), nullptr);
        report.request.document = "<DEVICE model=\"R-7106\"><TRANS><OBJECT name=\"Van 1\"/></TRANS></DEVICE>";
        report.request.readFrom = report.tracker.number;
        workbench::PendingWrite(session.backups().pendingWrite()).keep(report);
        QVERIFY(bench.start(VLK_PLUGIN));
        const auto* said = Bench::find<QLabel>("label_Report");
        QVERIFY(said && bench.text("label_Status").contains("was not confirmed"));
        QVERIFY2(said->text().startsWith("The last write to tracker 860000000071060 (") &&
                     said->text().contains("\nRead the configuration from the tracker; then"),
                 qPrintable(said->text()));
        QCOMPARE(Bench::find<QLabel>("label_Backup")->text(), QString("Backup No.\u00A01"));
        QVERIFY(Bench::find("pushButton_BringBack"));
        Bench::press("pushButton_Again");
        QVERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QTRY_VERIFY_WITH_TIMEOUT(bench.text("label_Report").startsWith("Written and confirmed"),
                                 Bench::kPatienceMs);
        QCOMPARE(session.tracker().configuration().text("TRANS/OBJECT/name"), QString("Van 1"));
        bench.window.close();
    }

    // By whichever way the tracker is read next, the report says what it holds.
    void tellsLaterWhatBecameOfAWrite()
    {
        for (const bool isTriedAgain : {false, true}) {
            OpenedWorkbench bench;
            workbench::HostSession& session = bench.window.session();
            session.tracker().attach();
            RoadReport report;
            report.tracker = session.attachedTracker();
            report.request.document = session.tracker().readConfiguration().document;
            report.request.readFrom = report.tracker.number;
            session.tracker().detach();
            QByteArray before = report.request.document;
            before.replace("name=\"", "name=\"Old ");
            report.backup =
                session.backups().add(report.tracker, before, QDateTime::currentDateTimeUtc(), nullptr);
            workbench::PendingWrite(session.backups().pendingWrite()).keep(report);
            QVERIFY(bench.start(VLK_PLUGIN));
            QVERIFY(bench.text("label_Report").contains("was not confirmed"));
            if (isTriedAgain)
                Bench::press("pushButton_Again");
            else
                bench.action("action_Read")->trigger();
            QTRY_VERIFY_WITH_TIMEOUT(bench.text("label_Report")
                                         .startsWith("Tracker 860000000071060 holds what was sent; read at "),
                                     Bench::kPatienceMs);
            QCOMPARE(bench.text("label_Report").count('\n'), 0);
            QVERIFY(!Bench::find("dialog_Review") && !Bench::find("dialog_Report"));
            QCOMPARE(session.backups().all().size(), 1);
            QCOMPARE(Bench::find("lineEdit_Name") != nullptr, !isTriedAgain);
            session.link().send(vlk::Message::CloseWindows);
            QVERIFY(!Bench::find("pushButton_Again") && Bench::find("pushButton_BringBack"));
            bench.window.close();
        }
    }

    void tellsTheStep()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        bench.asksForFaults("dialog_Review");
        bench.session().tracker().setFaults({.delayMs = 800});
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QVERIFY(Bench::comes("dialog_Progress"));
        const auto* step = Bench::find<QLabel>("label_Step");
        QCOMPARE(step->text(), QString("The configuration is being written to the tracker."));
        QTRY_VERIFY_WITH_TIMEOUT(!Bench::find("pushButton_Cancel")->isEnabled(), Bench::kPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(step->text().contains("read back"), Bench::kPatienceMs);
        bench.asksForFaults("dialog_Progress");
        QVERIFY(Bench::comes("dialog_Report"));
        bench.asksForFaults("dialog_Report");
        Bench::enter("pushButton_Close");
    }

    // Wherever it is told since when.
    void tellsOneTimeOfASilence()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        bench.session().tracker().setFaults({.delayMs = 1500});
        connect(&bench.session().road(), &workbench::WriteRoad::stepChanged, &bench.window,
                [&bench](RoadReport::Step step) {
                    if (step == RoadReport::Step::ReadingBack)
                        bench.session().tracker().setFaults({.silence = true});
                });
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QVERIFY(Bench::comes("dialog_Progress"));
        const auto* silence = Bench::find<QLabel>("label_Silence");
        QTRY_VERIFY_WITH_TIMEOUT(silence->text().startsWith("No answer since "), 10'000);
        const QString since = silence->text().section(' ', -1);
        QTRY_VERIFY(bench.text("label_Status").contains("No answer from the tracker since"));
        QVERIFY2(bench.text("label_Status").contains(since), qPrintable(bench.text("label_Status") + since));
        QTRY_VERIFY_WITH_TIMEOUT(Bench::find("dialog_Report"), 10'000);
        Bench::enter("pushButton_Close");
    }

    // Nobody is there who could cancel.
    void takesItsProgressAlong()
    {
        auto bench = std::make_unique<Bench>();
        bench->action("action_Read")->trigger();
        bench->session().tracker().setFaults({.delayMs = 5000});
        bench->editName("Van 1");
        QVERIFY(Bench::comes("dialog_Progress"));
        const QPointer<QWidget> progress = Bench::find("dialog_Progress");
        bench.reset();
        QVERIFY(!progress);
    }

    void triesAgainAndBringsBack()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        const QString before = bench.nameInTracker();
        bench.session().tracker().setFaults({.skipsPage = true});
        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QVERIFY(Bench::comes("dialog_Report"));
        const auto* table = Bench::find<QTableView>("tableView_Report");
        const auto cell = [&](int column) { return table->model()->index(0, column).data().toString(); };
        QCOMPARE(cell(1) + cell(2) + cell(3), "TRANS/OBJECT/nameVan 1" + before);
        bench.session().tracker().setFaults({});
        const auto letter = [](Qt::Key key) {
            QWidget* report = Bench::find("dialog_Report");
            QApplication::setActiveWindow(report);
            QTest::keyClick(report, key, Qt::AltModifier);
        };
        letter(Qt::Key_Y);
        QVERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), QString("Van 1"));
        letter(Qt::Key_B);
        QVERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("No.\u00A02 of this tracker"));
        Bench::press("pushButton_Write");
        QTRY_COMPARE_WITH_TIMEOUT(bench.nameInTracker(), before, Bench::kPatienceMs);
        QVERIFY(Bench::comes("dialog_Report"));
        // One that did not get there takes nothing away.
        const QString written = bench.text("label_Report");
        QVERIFY2(written.contains("\nBackup No.\u00A02 was brought back."), qPrintable(written));
        bench.session().tracker().detach();
        Bench::press("pushButton_BringBack");
        QTRY_VERIFY_WITH_TIMEOUT(bench.text("label_Report").contains("not written"), Bench::kPatienceMs);
        const auto* view = bench.window.findChild<QWidget*>("pushButton_OtherReport")->parentWidget();
        for (const bool isWritten : {true, false}) {
            view->findChild<QPushButton*>("pushButton_OtherReport")->click();
            QCOMPARE(bench.text("label_Report") == written, isWritten);
        }
        Bench::press("pushButton_Close");
        bench.session().tracker().attach();

        // What to do is told once.
        connect(&bench.session().road(), &workbench::WriteRoad::taken, &bench.window,
                [&bench] { bench.session().tracker().setFaults({.garbledAnswers = true}); });
        QVERIFY(!bench.session().bringBack(2));
        QVERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QVERIFY(Bench::comes("dialog_Report"));
        const QString told = Bench::find<QLabel>("label_Report")->text();
        QVERIFY2(told.count("ry again") == 1 &&
                     told.contains("\nIf that does not help, bring the backup back."),
                 qPrintable(told));
    }
};

QTEST_MAIN(RoadWindowsTest)
#include "tst_road_windows.moc"
