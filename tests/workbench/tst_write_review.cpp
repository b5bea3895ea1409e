// The review before a write, worked with keys: what it shows of a write, and which writes it shows to whoever
// has switched it off.

#include "road_bench.h"
#include "support/files.h"
#include "support/full_disk.h"

using Bench = RoadBench;

class WriteReviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    // Only a fresh key counts, and the box skips what loses nothing.
    void reviewsByKeys()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QVERIFY(Bench::comes("dialog_Review"));
        QWidget* review = Bench::find("dialog_Review");
        QTest::keyClick(review, Qt::Key_Return);
        QVERIFY(Bench::isReviewed());
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(Bench::find("pushButton_Write"), &held);
        QVERIFY(Bench::find("dialog_Review") == review && bench.session().road().isInReview());
        QCOMPARE(bench.text("label_Report"), QString());
        QCOMPARE(Bench::find<QLabel>("label_Counts")->text(), QString("1 changed, 0 added"));
        QTest::keyClick(Bench::find("checkBox_ReviewAlways"), Qt::Key_Space);
        QTest::keyClick(review, Qt::Key_Return);
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), QString("Van 1"));
        QTest::keyClick(Bench::find("dialog_Report"), Qt::Key_Return);
        bench.editName("Van 2");
        QTRY_COMPARE_WITH_TIMEOUT(bench.nameInTracker(), QString("Van 2"), Bench::kPatienceMs);
        QVERIFY(Bench::comes("dialog_Report"));
        QTest::keyClick(Bench::find("dialog_Report"), Qt::Key_Return);
        // The menu brings it back.
        bench.action("action_ReviewAlways")->trigger();
        bench.editName("Van 3");
        QVERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QCheckBox>("checkBox_ReviewAlways")->isChecked());
        QTest::keyClick(Bench::find("checkBox_ReviewAlways"), Qt::Key_Space);
        Bench::press("pushButton_Cancel");
        auto* tools = qobject_cast<QMenu*>(bench.action("action_ReviewAlways")->parentWidget());
        Q_EMIT tools->aboutToShow();
        QVERIFY(!bench.action("action_ReviewAlways")->isChecked());
        bench.session().link().send(vlk::Message::CloseWindows);

        // A file that removes what the tracker holds is shown all the same, and Enter leaves all as it is.
        bench.window.openFile(writeFile(bench.root.filePath("bare.xml"),
                                        "<DEVICE model=\"R-7106\"><TRACK bend=\"1\"/><X/></DEVICE>"));
        bench.editName("Van 3");
        QVERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("bare.xml"));
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("not written: TRACK/bend; X."));
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QVERIFY(Bench::goes("dialog_Review"));
        QTRY_VERIFY(bench.text("label_Status").contains("write was cancelled"));
        QCOMPARE(bench.nameInTracker(), QString("Van 2"));
    }

    // Whoever wants no review gets one where there is no room to look for errors.
    void showsWhatCouldNotBeChecked()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.action("action_ReviewAlways")->trigger();
        bench.editName("Van 1");
        {
            const FullDisk disk(10);
            QVERIFY(Bench::isReviewed());
        }
        QVERIFY(Bench::find("pushButton_Cancel")->hasFocus());
        const QString said = Bench::find<QLabel>("label_Origin")->text();
        QVERIFY2(said.startsWith("The configuration could not be checked for errors: no temporary file") &&
                     said.contains("has to be seen: the configuration could not be checked for errors."),
                 qPrintable(said));
        Bench::press("pushButton_Cancel");
        bench.editName("Van 1");
        QTRY_COMPARE_WITH_TIMEOUT(bench.nameInTracker(), QString("Van 1"), Bench::kPatienceMs);
        QVERIFY(Bench::comes("dialog_Report"));
    }

    // What quick setup does to any configuration, and the load of what it wrote in full setup, is told from
    // what was edited, which stands before it.
    void tellsWhyUneditedSettingsChange()
    {
        Bench bench;
        QTest::keyClick(bench.window.findChild<QComboBox*>("comboBox_Window"), Qt::Key_Down);
        bench.action("action_Read")->trigger();
        struct Write
        {
            const char* window; // the way to it
            const char* button;
            const char* port;
            const char* removed;
            QStringList order;
            bool isDone = true;
        };
        const char* toFull = "pushButton_Light_ConfigFull";
        for (const Write& write : {Write{toFull,
                                         "pushButton_LoadToDevice",
                                         "5554",
                                         "Bluetooth, Sensor 1",
                                         {"– Quick setup removes it", "5554 ", "Quick setup sets it anew"},
                                         false},
                                   Write{nullptr,
                                         "pushButton_Light_LoadToDevice",
                                         "5555",
                                         "Bluetooth, Sensor 1",
                                         {"– Quick setup removes it", "5555 ", "Quick setup sets it anew"}},
                                   Write{toFull,
                                         "pushButton_LoadToDevice",
                                         "5556",
                                         "Servers / Main, Protocol",
                                         {"– Full setup does not use it, a write from there drops it",
                                          "5556 ", "Not in the file, its default value counts"}}}) {
            if (write.window)
                Bench::press(write.window);
            auto* port = Bench::find<QSpinBox>("GPRSSrv_spinBox_Port_Main");
            QApplication::setActiveWindow(port->window());
            port->setFocus();
            port->selectAll();
            QTest::keyClicks(port, write.port);
            Bench::press(write.button);
            QVERIFY(Bench::isReviewed());
            auto* own = Bench::find<QCheckBox>("checkBox_OwnAlone");
            QVERIFY(own && own->text() == "Only &your changes: 1");
            const auto* table = Bench::find<QTableView>("tableView_Review");
            // Of each kind once.
            const auto shown = [table] {
                QStringList lines;
                for (int row = 0; row < table->model()->rowCount(); ++row) {
                    const QString after = table->model()->index(row, 2).data().toString();
                    const QString note = table->model()->index(row, 3).data().toString();
                    const bool isTold = after == "–" || note.isEmpty();
                    const QString line = isTold ? after + ' ' + note : note;
                    if (!table->isRowHidden(row) && (lines.isEmpty() || lines.last() != line))
                        lines << line;
                }
                return lines;
            };
            QCOMPARE(shown(), write.order);
            // A sensor in use before those that are not.
            const QString first = table->model()->index(0, 0).data().toString();
            QVERIFY2(first.contains(write.removed), qPrintable(first));
            QTest::keyClick(own, Qt::Key_Space);
            QCOMPARE(shown(), QStringList(write.order[1]));
            if (!write.isDone) {
                Bench::press("pushButton_Cancel");
                for (int step = 0; step < 2; ++step) // the port, the change to full setup
                    Bench::press("toolButton_Undo");
                continue;
            }
            Bench::press("pushButton_Write");
            QVERIFY(Bench::comes("dialog_Report"));
            Bench::press("pushButton_Close");
        }
        // The next try of the last one may come in another language.
        bench.session().link().send(vlk::Message::CloseWindows);
        bench.window.setLanguage("ru");
        const workbench::FileComparer& comparer = bench.session().comparer();
        const QByteArray before = bench.session().backups().document(2);
        const QByteArray after = bench.session().tracker().readConfiguration().document;
        const auto changes = comparer.compareWritten(before, after);
        const auto plain = comparer.compare(before, after);
        bench.window.setLanguage("en"); // the plug-in stays in the process
        QVERIFY(changes && changes->last().note.startsWith("В файле этого не было"));
        // What is looked at in the history is nobody's edit.
        QVERIFY(plain && plain->last().note.isEmpty());
    }

    // However long the values are, and however narrow the window.
    void keepsNamesReadable()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        const auto isReadable = [](const char* dialog, const char* name) {
            const int width = 720;
            Bench::find(dialog)->resize(width, 400);
            const auto* table = Bench::find<QTableView>(name);
            return table->viewport()->width() < width && table->horizontalScrollBar()->maximum() == 0 &&
                   table->columnWidth(0) * 3 > table->viewport()->width();
        };
        bench.editName("A lorry of the third column, with a trailer");
        QVERIFY(Bench::isReviewed());
        QTRY_VERIFY(isReadable("dialog_Review", "tableView_Review"));
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QVERIFY(Bench::comes("dialog_Report"));
        QTRY_VERIFY(isReadable("dialog_Report", "tableView_Report"));
        QTest::keyClick(Bench::find("dialog_Report"), Qt::Key_Return);
    }

    // Enter presses the button that has the keyboard, whichever is the first choice.
    void entersTheButtonInFocus()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        const QString before = bench.nameInTracker();
        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        Bench::enter("pushButton_Cancel");
        QVERIFY(Bench::goes("dialog_Review"));
        QTRY_VERIFY(bench.text("label_Status").contains("write was cancelled"));
        QCOMPARE(bench.nameInTracker(), before);

        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        QTest::keyClick(Bench::find("tableView_Review"), Qt::Key_Return);
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), QString("Van 1"));
        Bench::enter("pushButton_BringBack");
        QVERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), before);
        Bench::enter("pushButton_Close");

        // What is there already is written only on demand.
        bench.session().bringBack(1);
        QVERIFY(Bench::isReviewed());
        QCOMPARE(Bench::find<QLabel>("label_Counts")->text(), QString("The tracker holds the same already"));
        QVERIFY(Bench::find("pushButton_Cancel")->hasFocus());
        Bench::enter("pushButton_Write");
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(bench.session().backups().all().size(), 3);
        Bench::enter("pushButton_Close");
    }

    // One that was given up may still be there when the next one comes.
    void givesUpOneReviewAtATime()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QVERIFY(Bench::isReviewed());
        Bench::press("pushButton_Cancel");
        bench.editName("Van 1");
        const QDeadlineTimer deadline(Bench::kPatienceMs);
        while (!bench.session().road().isInReview() && !deadline.hasExpired())
            QCoreApplication::processEvents();
        QVERIFY(bench.session().road().isInReview());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(bench.session().road().isInReview());
        Bench::press("pushButton_Cancel");
    }

    // What was brought back under the open window does not come back unseen, and what was written there is
    // what Esc goes back to.
    void knowsThatTheTrackerWasBroughtBack()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.action("action_ReviewAlways")->trigger();
        const QString before = bench.nameInTracker();
        auto* field = Bench::find<QLineEdit>("lineEdit_Name");
        const auto write = [field] {
            QApplication::setActiveWindow(field->window());
            QTest::keyClick(field->window(), Qt::Key_W, Qt::AltModifier);
        };
        for (const bool isPrevious : {false, true}) {
            field->setFocus();
            field->selectAll();
            QTest::keyClicks(field, "Van 1");
            write();
            if (isPrevious) {
                QVERIFY(Bench::isReviewed());
                Bench::press("pushButton_Write");
            }
            QVERIFY(Bench::comes("dialog_Report"));
            QCOMPARE(bench.nameInTracker(), QString("Van 1"));
            if (isPrevious) {
                Bench::press("pushButton_Close");
                QVERIFY(!bench.session().bringBackPrevious());
            } else {
                Bench::press("pushButton_BringBack");
            }
            QVERIFY(Bench::isReviewed());
            Bench::press("pushButton_Write");
            QTRY_COMPARE_WITH_TIMEOUT(bench.nameInTracker(), before, Bench::kPatienceMs);
            QVERIFY(Bench::comes("dialog_Report"));
            Bench::press("pushButton_Close");
            QCOMPARE(field->text(), QString("Van 1"));
            // Somebody else may have written besides.
            auto& tracker = bench.session().tracker();
            const QByteArray held = tracker.readConfiguration().document;
            for (const bool isByOther : {false, true}) {
                if (isByOther)
                    tracker.takeConfiguration(QByteArray(held).replace("\"4000\"", "\"4001\""));
                write();
                QVERIFY(Bench::isReviewed());
                const QString said = Bench::find<QLabel>("label_Origin")->text();
                const char* reasons[] = {"the tracker was brought back", "the tracker holds something else"};
                QVERIFY2(said.contains(QString("has to be seen: ") + reasons[isByOther]), qPrintable(said));
                QVERIFY2(!said.contains(reasons[!isByOther]), qPrintable(said));
                // That is nobody's edit of now.
                const auto* lines = Bench::find<QTableView>("tableView_Review")->model();
                QVERIFY(!lines
                             ->match(lines->index(0, 3), Qt::DisplayRole,
                                     "The tracker was brought back to another value", 1, Qt::MatchExactly)
                             .isEmpty());
                QVERIFY(Bench::find("pushButton_Cancel")->hasFocus());
                Bench::press("pushButton_Cancel");
                QVERIFY(Bench::goes("dialog_Review"));
            }
            tracker.takeConfiguration(held);
            // One button takes over what the tracker has, as one step.
            auto* told = Bench::find<QLabel>("label_Unsaved");
            QVERIFY(told && told->text().contains("was brought back to another"));
            QVERIFY(Bench::find<QAbstractButton>("toolButton_Differences")->text() == "1");
            Bench::press("label_Unsaved_Action1");
            QCOMPARE(field->text(), before);
            QVERIFY(!Bench::find("label_Unsaved"));
            Bench::press("toolButton_Undo");
            QVERIFY(Bench::find("label_Unsaved"));
            Bench::press("toolButton_Redo");
            QVERIFY(!Bench::find("label_Unsaved"));
        }
        // What is edited from there overwrites nothing unseen.
        field->setFocus();
        QTest::keyClicks(field, "x");
        QVERIFY(!Bench::find("label_Unsaved"));
        write();
        QVERIFY(Bench::comes("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), field->text());
        Bench::press("pushButton_Close");
        // A write ends what could be taken over, whatever is typed again.
        field->selectAll();
        QTest::keyClicks(field, "Van 1");
        QTRY_COMPARE(Bench::find<QAbstractButton>("toolButton_Differences")->text(), QString("1"));
        QVERIFY(!Bench::find("label_Unsaved"));
        QTest::keyClick(field, Qt::Key_Escape);
        QCOMPARE(field->text(), bench.nameInTracker());
    }
};

QTEST_MAIN(WriteReviewTest)
#include "tst_write_review.moc"
