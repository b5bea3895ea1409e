// The history worked with keys, and what is brought back from it and from the tracker.

#include "road_bench.h"
#include "support/files.h"
#include "support/letters.h"

using Bench = RoadBench;

class HistoryWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void looksThroughTheHistory()
    {
        Bench bench;
        const QString before = bench.nameInTracker();
        bench.action("action_Read")->trigger();
        bench.write("Van 1");
        bench.write("Van 2");
        bench.session().link().send(vlk::Message::CloseWindows);
        bench.action("action_History")->trigger();
        auto* list = Bench::find<QTreeWidget>("treeWidget_Backups");
        const auto* table = Bench::find<QTableView>("tableView_History");
        const auto values = [&] {
            return table->model()->index(0, 1).data().toString() + '>' +
                   table->model()->index(0, 2).data().toString();
        };
        QCOMPARE(values(), before + ">Van 1");
        QCOMPARE(sharedLetters(list->window()), QString());
        const auto tracker = [list] { return list->topLevelItem(0)->text(0); };
        QCOMPARE(tracker(), QString("860000000071060 Van 2")); // as it is called now
        QTRY_COMPARE_WITH_TIMEOUT(list->topLevelItem(0)->child(0)->text(2), QString("1"), Bench::kPatienceMs);
        QApplication::setActiveWindow(list->window());
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(Bench::find<QComboBox>("comboBox_Backup")->currentText(), QString("No.\u00A01"));
        QCOMPARE(values(), "Van 2>" + before); // against what the tracker holds now
        QCOMPARE(list->currentItem()->text(1), QString("1"));
        const auto* head = table->horizontalHeader();
        QVERIFY(head->sectionSize(1) >= head->sectionSizeHint(1));
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(table->hasFocus() && !Bench::find("dialog_Review"));

        QTimer::singleShot(0, [] {
            auto* input = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            QTest::keyClicks(input->findChild<QLineEdit*>(), "tank");
            QTest::keyClick(input, Qt::Key_Return);
        });
        Bench::press("pushButton_Note");
        QCOMPARE(bench.session().backups().find(1)->note, QString("tank"));
        auto* filter = Bench::find<QLineEdit>("lineEdit_HistoryFilter");
        QTest::keyClicks(filter, "TANK");
        QVERIFY(list->topLevelItem(0)->child(0)->isHidden() && !list->topLevelItem(0)->child(1)->isHidden());
        QTest::keyClicks(filter, "?");
        const auto notes = list->findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(notes, [](const QLabel* note) {
            return note->isVisible() && note->text() == "Nothing matches.";
        }));
        QTest::keyClick(filter, Qt::Key_Backspace);

        // Enter presses the button that has the keyboard.
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        Bench::enter("pushButton_Note");
        QVERIFY(Bench::find("dialog_History") && !QApplication::activeModalWidget());
        QVERIFY(!Bench::find("pushButton_BringChosen")->isEnabled());
        table->model()->setData(table->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        // It comes back with the two that it was chosen of, also when they could not be read in between.
        auto* sides = Bench::find<QComboBox>("comboBox_Against");
        sides->setFocus();
        const QString now = sides->currentText();
        for (const auto& [key, isSilent, isChosen] : {std::tuple(Qt::Key_Up, true, false),
                                                      {Qt::Key_Down, true, false},
                                                      {Qt::Key_Up, false, false},
                                                      {Qt::Key_Down, false, true}}) {
            bench.session().tracker().setFaults({.silence = isSilent});
            QTest::keyClick(sides, key);
            QCOMPARE(Bench::find("pushButton_BringChosen")->isEnabled(), isChosen);
        }
        QCOMPARE(sides->currentText(), now);
        // Neither a file that is not chosen after all nor a review that is given up changes what is looked
        // at.
        auto* against = Bench::find<QComboBox>("comboBox_Against");
        const QString compared = against->currentText();
        QTimer::singleShot(50, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        against->setFocus();
        QTest::keyClick(against, Qt::Key_End);
        QCOMPARE(against->currentText(), compared);
        // The button says which of the two goes into the tracker, and asks in any case.
        const auto captionOf = [](const char* name) { return Bench::find<QPushButton>(name)->text(); };
        QCOMPARE(captionOf("pushButton_BringWhole"), QString("&Bring back No.\u00A01…"));
        QCOMPARE(captionOf("pushButton_BringChosen"), QString("Bring &chosen back from No.\u00A01…"));
        bench.action("action_ReviewAlways")->trigger();
        for (const char* end : {"pushButton_Cancel", "pushButton_Write"}) {
            Bench::press("pushButton_BringChosen");
            QVERIFY(Bench::isReviewed());
            Bench::press(end);
        }
        QTRY_COMPARE_WITH_TIMEOUT(bench.nameInTracker(), before, Bench::kPatienceMs);
        QTRY_COMPARE_WITH_TIMEOUT(bench.session().backups().all().size(), 3, Bench::kPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(
            bench.text("label_Report")
                .contains("\nThe chosen settings of backup No.\u00A01 were brought back."),
            Bench::kPatienceMs);
        // The report has the keys, also where the system gives them to the window below it.
        QVERIFY(Bench::comes("dialog_Report"));
        QApplication::setActiveWindow(list->window());
        QTRY_COMPARE(QApplication::activeWindow(), Bench::find("dialog_Report"));
        QVERIFY(Bench::find("pushButton_Close")->hasFocus());
        QCOMPARE(tracker(), "860000000071060 " + before);
        // What the tracker holds now is what was brought back.
        QTRY_VERIFY_WITH_TIMEOUT(!bench.session().road().isBusy(), Bench::kPatienceMs);
        QCOMPARE(Bench::find<QComboBox>("comboBox_Against")->currentText(), QString("In the tracker now"));
        QCOMPARE(table->model()->rowCount(), 0);
        list->window()->close();
        bench.action("action_History")->trigger();
        QCOMPARE(Bench::find<QComboBox>("comboBox_Backup")->currentText(), QString("No.\u00A03"));
        // With a file, which does not enter the history by that.
        const QString van = writeFile(bench.root.filePath("van.xml"),
                                      "<DEVICE><TRANS><OBJECT name='Van 9'/></TRANS></DEVICE>");
        QTimer::singleShot(50, [&van] {
            QWidget* dialog = QApplication::activeModalWidget();
            auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
            name->setText(van);
            QTest::keyClick(name, Qt::Key_Return);
        });
        QTest::keyClick(against, Qt::Key_End);
        QVERIFY2(against->currentText().contains("van.xml"), qPrintable(against->currentText()));
        QCOMPARE(values(), QString("Van 9>Van 2"));
        QCOMPARE(bench.session().backups().all().size(), 3);
        // Why there is nothing to compare with.
        bench.session().tracker().setFaults({.silence = true});
        QTest::keyClick(against, Qt::Key_I);
        QCOMPARE(against->currentText(), QString("In the tracker now"));
        QCOMPARE(table->findChild<QLabel*>("label_Empty")->text(),
                 QString("What it is compared with cannot be read. The tracker does not answer. Check the "
                         "cable and try again."));
        bench.window.setLanguage("ru");
        QTRY_VERIFY(list->window()->windowTitle().startsWith(QString("История")));
        QCOMPARE(captionOf("pushButton_BringWhole"), QString("&Вернуть №\u00A03…"));
        QCOMPARE(sharedLetters(list->window()), QString());
    }

    // Nothing brings back what is dropped here.
    void asksBeforeItDropsBackups()
    {
        Bench bench;
        workbench::Backups& backups = bench.session().backups();
        const QDateTime now = QDateTime::currentDateTimeUtc();
        for (const int days : {500, 400, 200, 1})
            QVERIFY(backups.add({"R-7106", "1", {}}, "<DEVICE/>", now.addDays(-days), nullptr) > 0);
        QVERIFY(backups.setNote(1, "before the tank"));
        bench.action("action_History")->trigger();
        auto* keep = Bench::find<QComboBox>("comboBox_Keep");
        QApplication::setActiveWindow(keep->window());
        QString asked;
        const auto choose = [&](Qt::Key key, Qt::Key answer) {
            asked.clear();
            QTimer::singleShot(0, [&asked, answer] {
                if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    asked = box->text();
                    if (answer == Qt::Key_Delete)
                        box->buttons().first()->click();
                    QTest::keyClick(box, answer);
                }
            });
            keep->setFocus();
            QTest::keyClick(keep, key);
            QCoreApplication::processEvents();
        };
        const auto turn = [](QComboBox* box) {
            const QPoint middle = box->rect().center();
            QWheelEvent wheel(middle, box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &wheel);
        };
        Bench::find("treeWidget_Backups")->setFocus();
        for (const char* name : {"comboBox_Keep", "comboBox_Backup", "comboBox_Against"}) {
            auto* box = Bench::find<QComboBox>(name);
            const int before = box->currentIndex();
            turn(box);
            QVERIFY2(box->currentIndex() == before && !box->hasFocus() && backups.all().size() == 4, name);
        }
        choose(Qt::Key_Down, Qt::Key_Return); // on Cancel
        QCOMPARE(asked, QString("Backups older than 3\u00A0months: 2. Delete them for good?\n\n"
                                "Those with a note stay (1 of the older ones), and the last one of each "
                                "tracker."));
        QCOMPARE(keep->currentText() + QString::number(backups.all().size()), QString("always4"));
        choose(Qt::Key_End, Qt::Key_Return);
        QCOMPARE(asked + keep->currentText(), QString("3\u00A0years")); // loses nothing
        choose(Qt::Key_Up, Qt::Key_Delete);
        QVERIFY(asked.startsWith("Backups older than 1\u00A0year: 1."));
        QCOMPARE(keep->currentText(), QString("1\u00A0year"));
        QVERIFY(backups.all().size() == 3 && backups.find(1) && backups.find(3) && backups.find(4));
    }

    // What can be brought back is in sight, and which of two cannot be read is said.
    void worksWithWhatIsInSight()
    {
        Bench bench;
        workbench::Backups& backups = bench.session().backups();
        const auto add = [&backups](const char* tracker, const char* name, const char* document) {
            return backups.add({"R-7106", tracker, name}, document, QDateTime::currentDateTimeUtc(), nullptr);
        };
        add("860000000071060", "Van B2", "<DEVICE/>");
        add("860000000071060", "Van B3", "<DEVICE><A");
        add("99999", "Lorry", "<DEVICE/>");
        bench.action("action_History")->trigger();
        auto* list = Bench::find<QTreeWidget>("treeWidget_Backups");
        auto* filter = Bench::find<QLineEdit>("lineEdit_HistoryFilter");
        const auto* whole = Bench::find<QPushButton>("pushButton_BringWhole");
        const auto said = [] {
            return Bench::find("tableView_History")->findChild<QLabel*>("label_Empty")->text();
        };
        QVERIFY(whole->text().contains("No.\u00A02"));
        QVERIFY2(said().startsWith("Backup No.\u00A02 cannot be read. It is cut short"), qPrintable(said()));
        const auto filterBy = [filter](const char* words) {
            filter->selectAll();
            QTest::keyClicks(filter, words);
        };
        filterBy("99999");
        QVERIFY(whole->text().contains("No.\u00A03") && whole->isEnabled());
        filterBy("b2"); // as it was called then
        QVERIFY(whole->text().contains("No.\u00A01") && whole->isEnabled());
        filterBy("?");
        QVERIFY(!whole->isEnabled() && !Bench::find("pushButton_Note")->isEnabled());
        filter->clear();
        QVERIFY(whole->text().contains("No.\u00A02"));
        list->setCurrentItem(list->topLevelItem(1));
        QVERIFY(!whole->isEnabled());
        QCOMPARE(said(), QString("Choose a backup."));
    }

    // A chosen setting takes along what it needs, and the review says so.
    void bringsWhatIsNeeded()
    {
        Bench bench;
        const QByteArray kept = "<DEVICE model=\"R-7106\"><RS485><OPTIONS owner1=\"TPMS\"/>"
                                "<TPMS type=\"PRESSPRO\" holdTime=\"20\"/></RS485></DEVICE>";
        const int number = bench.session().backups().add({"R-7106", "1", {}}, kept,
                                                         QDateTime::currentDateTimeUtc(), nullptr);
        QVERIFY(!bench.session().bringBack(number, {"RS485/TPMS/holdTime"}));
        QVERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("come along"));
        QVERIFY(Bench::find("pushButton_Cancel")->hasFocus());
        Bench::press("pushButton_Write");
        const auto held = [&](const char* path) {
            return bench.session().tracker().configuration().text(path);
        };
        QTRY_COMPARE_WITH_TIMEOUT(held("RS485/TPMS/holdTime"), QString("20"), Bench::kPatienceMs);
        QCOMPARE(held("RS485/OPTIONS/owner1"), QString("TPMS"));
    }

    // Fetched from the tracker, reviewed, written, read back.
    void bringsThePreviousBack()
    {
        Bench bench;
        const QString before = bench.nameInTracker();
        bench.action("action_Read")->trigger();
        bench.write("Van 1");
        bench.session().link().send(vlk::Message::CloseWindows);
        // Asked, whatever the switch says: it takes back what is there.
        bench.action("action_ReviewAlways")->trigger();
        bench.action("action_Previous")->trigger();
        QVERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("kept before the last write"));
        Bench::enter("pushButton_Write");
        QTRY_COMPARE_WITH_TIMEOUT(bench.nameInTracker(), before, Bench::kPatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(!bench.session().road().isBusy(), Bench::kPatienceMs);
        QVERIFY(bench.text("label_Report").startsWith("Written and confirmed: 1 of 1"));
        QVERIFY(bench.text("label_Report").contains("\nThe previous configuration, which"));
        QCOMPARE(bench.session().backups().all().size(), 2);
    }
};

QTEST_MAIN(HistoryWindowTest)
#include "tst_history_window.moc"
