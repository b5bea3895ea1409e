// The windows round a write, worked with keys: what there is to do first, review, report and history.

#include "opened_workbench.h"
#include "support/files.h"
#include "tracker/configuration_values.h"

#include <QtTest>
#include <QtWidgets>

using workbench::RoadReport;

namespace {

struct Bench : OpenedWorkbench
{
    Bench() { start(VLK_PLUGIN); }
    ~Bench()
    {
        session().link().send(vlk::Message::CloseWindows);
        window.close();
    }

    workbench::HostSession& session() { return window.session(); }
    QString nameInTracker() { return session().tracker().configuration().text("TRANS/OBJECT/name"); }

    template <class Widget = QWidget>
    static Widget* find(const char* name)
    {
        // What a person can reach first of all.
        QWidgetList tops = QApplication::topLevelWidgets();
        if (QWidget* modal = QApplication::activeModalWidget())
            tops.prepend(modal);
        for (QWidget* top : tops) {
            if (top->isVisible() && top->objectName() == QLatin1String(name))
                return qobject_cast<Widget*>(top);
            for (QWidget* child : top->findChildren<QWidget*>(QLatin1String(name)))
                if (child->isVisible())
                    return qobject_cast<Widget*>(child);
        }
        return nullptr;
    }
    static void press(const char* name)
    {
        auto* button = find<QAbstractButton>(name);
        QVERIFY2(button && button->isEnabled(), name);
        button->click();
    }
    // Once the review has come and may be answered.
    static bool isReviewed()
    {
        const auto* write = find<QAbstractButton>("pushButton_Write");
        return write && write->isEnabled();
    }
    void editName(const QString& name)
    {
        auto* field = find<QLineEdit>("lineEdit_Name");
        QVERIFY(field);
        QApplication::setActiveWindow(field->window());
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Tab);
        press("pushButton_LoadToDevice");
    }
    static void tabTo(const char* name)
    {
        QWidget* wanted = find(name);
        QVERIFY2(wanted, name);
        QApplication::setActiveWindow(wanted->window());
        for (int tabs = 0; tabs < 20 && !wanted->hasFocus(); ++tabs)
            QTest::keyClick(wanted->window()->focusWidget(), Qt::Key_Tab);
        QVERIFY2(wanted->hasFocus(), name);
    }
    // They come over a window, take a click and go again.
    static void asksForFaults(const char* over)
    {
        QWidget* window = find(over);
        QVERIFY2(window, over);
        QApplication::setActiveWindow(window);
        QTest::keyClick(window, Qt::Key_F9);
        const auto* faults = window->findChild<QDialog*>("dialog_Faults");
        QVERIFY2(faults && faults->isVisible(), over);
        QTRY_COMPARE(QApplication::activeWindow(), faults);
        auto* silence = faults->findChild<QCheckBox*>("checkBox_SkipsPage");
        const QPoint at = silence->mapTo(faults, QPoint(8, silence->height() / 2));
        QTest::mouseClick(faults->windowHandle(), Qt::LeftButton, {}, at);
        QTRY_VERIFY2(silence->isChecked(), over);
        QTest::mouseClick(faults->windowHandle(), Qt::LeftButton, {}, at);
        QTRY_VERIFY2(!silence->isChecked(), over);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
        QVERIFY2(!faults->isVisible(), over);
    }
    static void enter(const char* name)
    {
        tabTo(name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    // By Enter on the review and on the report.
    void write(const QString& name)
    {
        editName(name);
        QTRY_VERIFY(isReviewed());
        QTest::keyClick(find("dialog_Review"), Qt::Key_Return);
        QTRY_VERIFY(find("dialog_Report"));
        QTest::keyClick(find("dialog_Report"), Qt::Key_Return);
        QTRY_VERIFY(!find("dialog_Report"));
        QCOMPARE(nameInTracker(), name);
    }
};

} // namespace

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
        QTRY_VERIFY(Bench::find("pushButton_Get_Current"));
        QTest::keyClick(read, Qt::Key_Return);
        QTRY_VERIFY(Bench::find("lineEdit_Name"));
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
        QTRY_VERIFY(Bench::find("dialog_History"));
    }

    // Only a fresh key counts, and the box skips what loses nothing.
    void reviewsByKeys()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QTRY_VERIFY(Bench::find("dialog_Review"));
        QWidget* review = Bench::find("dialog_Review");
        QTest::keyClick(review, Qt::Key_Return);
        QTRY_VERIFY(Bench::isReviewed());
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(Bench::find("pushButton_Write"), &held);
        QVERIFY(Bench::find("dialog_Review") == review && bench.session().road().isInReview());
        QCOMPARE(bench.text("label_Report"), QString());
        QCOMPARE(Bench::find<QLabel>("label_Counts")->text(), QString("1 changed, 0 added"));
        QTest::keyClick(Bench::find("checkBox_ReviewAlways"), Qt::Key_Space);
        QTest::keyClick(review, Qt::Key_Return);
        QTRY_VERIFY(Bench::find("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), QString("Van 1"));
        QTest::keyClick(Bench::find("dialog_Report"), Qt::Key_Return);
        bench.editName("Van 2");
        QTRY_COMPARE(bench.nameInTracker(), QString("Van 2"));
        QTRY_VERIFY(Bench::find("dialog_Report"));
        QTest::keyClick(Bench::find("dialog_Report"), Qt::Key_Return);
        // The menu brings it back.
        bench.action("action_ReviewAlways")->trigger();
        bench.editName("Van 3");
        QTRY_VERIFY(Bench::isReviewed());
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
        QTRY_VERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("bare.xml"));
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("not written: TRACK/bend; X."));
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QTRY_VERIFY(!Bench::find("dialog_Review"));
        QTRY_VERIFY(bench.text("label_Status").contains("write was cancelled"));
        QCOMPARE(bench.nameInTracker(), QString("Van 2"));
    }

    // The field is red, and what is written is not what was typed into it.
    void tellsWhatWasRefusedAsLongAsItIs()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        auto* box = Bench::find("lineEdit_Name")->window()->findChild<QSpinBox*>("GPRSSrv_spinBox_Port_Main");
        const auto type = [box](const QString& keys) {
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
            QTRY_VERIFY(Bench::isReviewed());
            QVERIFY2(isAdvised(), name);
            Bench::press("pushButton_Write");
            QTRY_VERIFY(Bench::find("dialog_Report"));
            QVERIFY2(bench.text("label_Report").contains(refused), name);
            Bench::press("pushButton_Close");
        }
        bench.editName("Van 3");
        QTRY_VERIFY(Bench::isReviewed());
        Bench::press("pushButton_Cancel");
        // With what stands there already nothing is red any more.
        type(port);
        bench.editName("Van 3");
        QTRY_VERIFY(Bench::isReviewed());
        QVERIFY(!isAdvised());
        Bench::press("pushButton_Cancel");
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
        QTRY_VERIFY(Bench::isReviewed());
        QTRY_VERIFY(isReadable("dialog_Review", "tableView_Review"));
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QTRY_VERIFY(Bench::find("dialog_Report"));
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
        QTRY_VERIFY(Bench::isReviewed());
        Bench::enter("pushButton_Cancel");
        QTRY_VERIFY(!Bench::find("dialog_Review"));
        QTRY_VERIFY(bench.text("label_Status").contains("write was cancelled"));
        QCOMPARE(bench.nameInTracker(), before);

        bench.editName("Van 1");
        QTRY_VERIFY(Bench::isReviewed());
        QTest::keyClick(Bench::find("tableView_Review"), Qt::Key_Return);
        QTRY_VERIFY(Bench::find("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), QString("Van 1"));
        Bench::enter("pushButton_BringBack");
        QTRY_VERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QTRY_VERIFY(Bench::find("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), before);
        Bench::enter("pushButton_Close");

        // What is there already is written only on demand.
        bench.session().bringBack(1);
        QTRY_VERIFY(Bench::isReviewed());
        QCOMPARE(Bench::find<QLabel>("label_Counts")->text(), QString("The tracker holds the same already"));
        QVERIFY(Bench::find("pushButton_Cancel")->hasFocus());
        Bench::enter("pushButton_Write");
        QTRY_VERIFY(Bench::find("dialog_Report"));
        QCOMPARE(bench.session().backups().all().size(), 3);
        Bench::enter("pushButton_Close");
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
        QTRY_VERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("kept before the last write"));
        Bench::enter("pushButton_Write");
        QTRY_COMPARE(bench.nameInTracker(), before);
        QTRY_VERIFY(!bench.session().road().isBusy());
        QVERIFY(bench.text("label_Report").startsWith("Written and confirmed: 1 of 1"));
        QCOMPARE(bench.session().backups().all().size(), 2);
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
        QTRY_VERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("come along"));
        QVERIFY(Bench::find("pushButton_Cancel")->hasFocus());
        Bench::press("pushButton_Write");
        const auto held = [&](const char* path) {
            return bench.session().tracker().configuration().text(path);
        };
        QTRY_COMPARE(held("RS485/TPMS/holdTime"), QString("20"));
        QCOMPARE(held("RS485/OPTIONS/owner1"), QString("TPMS"));
    }

    void tellsTheStep()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QTRY_VERIFY(Bench::isReviewed());
        bench.asksForFaults("dialog_Review");
        bench.session().tracker().setFaults({.delayMs = 800});
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QTRY_VERIFY(Bench::find("dialog_Progress"));
        const auto* step = Bench::find<QLabel>("label_Step");
        QCOMPARE(step->text(), QString("The configuration is being written to the tracker."));
        QTRY_VERIFY(!Bench::find("pushButton_Cancel")->isEnabled());
        QTRY_VERIFY(step->text().contains("read back"));
        bench.asksForFaults("dialog_Progress");
        QTRY_VERIFY(Bench::find("dialog_Report"));
        bench.asksForFaults("dialog_Report");
        Bench::enter("pushButton_Close");
    }

    // Wherever it is told since when.
    void tellsOneTimeOfASilence()
    {
        Bench bench;
        bench.action("action_Read")->trigger();
        bench.editName("Van 1");
        QTRY_VERIFY(Bench::isReviewed());
        bench.session().tracker().setFaults({.delayMs = 1500});
        connect(&bench.session().road(), &workbench::WriteRoad::stepChanged, &bench.window,
                [&bench](RoadReport::Step step) {
                    if (step == RoadReport::Step::readingBack)
                        bench.session().tracker().setFaults({.silence = true});
                });
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QTRY_VERIFY(Bench::find("dialog_Progress"));
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
        QTRY_VERIFY(Bench::find("dialog_Progress"));
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
        QTRY_VERIFY(Bench::isReviewed());
        QTest::keyClick(Bench::find("dialog_Review"), Qt::Key_Return);
        QTRY_VERIFY(Bench::find("dialog_Report"));
        const auto* table = Bench::find<QTableView>("tableView_Report");
        const auto cell = [&](int column) { return table->model()->index(0, column).data().toString(); };
        QCOMPARE(cell(1) + cell(2) + cell(3), "TRANS/OBJECT/nameVan 1" + before);
        bench.session().tracker().setFaults({});
        Bench::press("pushButton_Again");
        QTRY_VERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QTRY_VERIFY(Bench::find("dialog_Report"));
        QCOMPARE(bench.nameInTracker(), QString("Van 1"));
        Bench::press("pushButton_BringBack");
        QTRY_VERIFY(Bench::isReviewed());
        QVERIFY(Bench::find<QLabel>("label_Origin")->text().contains("No.\u00A02 of this tracker"));
        Bench::press("pushButton_Write");
        QTRY_COMPARE(bench.nameInTracker(), before);
        QTRY_VERIFY(Bench::find("dialog_Report"));
        // One that did not get there takes nothing away.
        const QString written = bench.text("label_Report");
        bench.session().tracker().detach();
        Bench::press("pushButton_BringBack");
        QTRY_VERIFY(bench.text("label_Report").contains("not written"));
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
        QTRY_VERIFY(Bench::isReviewed());
        Bench::press("pushButton_Write");
        QTRY_VERIFY(Bench::find("dialog_Report"));
        const QString told = Bench::find<QLabel>("label_Report")->text();
        QVERIFY2(told.count("ry again") == 1 &&
                     told.contains("\nIf that does not help, bring the backup back."),
                 qPrintable(told));
    }

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
        QTRY_COMPARE(list->topLevelItem(0)->child(0)->text(2), QString("1"));
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

        // Enter presses the button that has the keyboard.
        QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        Bench::enter("pushButton_Note");
        QVERIFY(Bench::find("dialog_History") && !QApplication::activeModalWidget());
        QVERIFY(!Bench::find("pushButton_BringChosen")->isEnabled());
        table->model()->setData(table->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
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
        QCOMPARE(captionOf("pushButton_BringWhole"), QString("Bring back No.\u00A01…"));
        QCOMPARE(captionOf("pushButton_BringChosen"), QString("Bring chosen back from No.\u00A01…"));
        bench.action("action_ReviewAlways")->trigger();
        for (const char* end : {"pushButton_Cancel", "pushButton_Write"}) {
            Bench::press("pushButton_BringChosen");
            QTRY_VERIFY(Bench::isReviewed());
            Bench::press(end);
        }
        QTRY_COMPARE(bench.nameInTracker(), before);
        QTRY_COMPARE(bench.session().backups().all().size(), 3);
        // What the tracker holds now is what was brought back.
        QTRY_VERIFY(!bench.session().road().isBusy());
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
        QCOMPARE(captionOf("pushButton_BringWhole"), QString("Вернуть №\u00A03…"));
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
};

QTEST_MAIN(RoadWindowsTest)
#include "tst_road_windows.moc"
