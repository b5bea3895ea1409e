// The calibration window: live values, rows, keys, and what it does without a tracker.

#include "fuel_window.h"

class FuelWindowTest : public QObject, private FuelWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startFuel(); }
    void init() { openFuel(); }
    void cleanup() { closeFuel(); }

    void opens()
    {
        QCOMPARE(edit("lineEdit_Title")->text(), QString("Truck: 7"));
        auto* groups = fuel_.child<QTabWidget>("tabWidget");
        QCOMPARE(groups->count(), 2);
        QCOMPARE(qobject_cast<QTabWidget*>(groups->widget(0))->count(), 1);
        QCOMPARE(qobject_cast<QTabWidget*>(groups->widget(1))->tabText(5), QString("tmiw_124 RS-485 D6"));
        QVERIFY(fuel_.child<QWidget>("pushButton_Help")->isHidden());
        QVERIFY(!fuel_.isOn("pushButton_Save_Xml"));
        QVERIFY(host.takeSent(Message::RequestAnalog).size() == 1);
        QVERIFY(fuel_.window->screen()->availableGeometry().contains(fuel_.window->geometry()));
    }

    // Question, answer, two seconds, question: until the window closes.
    void asksInAChain()
    {
        host.sent.clear();
        host.send(Message::AnalogRecord, nullptr);
        host.send(Message::AnalogRecord, liveRecord().constData());
        host.send(Message::AnalogRecord, liveRecord().constData());
        QCOMPARE(field("A3", "lineEdit_Param")->text(), QString("12.34"));
        QCOMPARE(field("D1", "lineEdit_Param")->text(), QString("1001"));
        QCOMPARE(field("D6", "lineEdit_Param")->text(), QString("1006"));
        QVERIFY(host.sent.isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(!host.sent.isEmpty(), 4000);
        QCOMPARE(host.takeSent(Message::RequestAnalog).size(), 1);
        host.send(Message::AnalogRecord, liveRecord().constData());
        // The value outlives one answer that does not come, not two.
        edit("A3", "2");
        QTest::qWait(3000);
        QVERIFY(form("A3")->findChild<QPushButton*>("pushButton_Add")->isEnabled());
        QTRY_VERIFY(!form("A3")->findChild<QPushButton*>("pushButton_Add")->isEnabled());
        QCOMPARE(field("A3", "lineEdit_Param")->text(), QString());
        host.sent.clear();
        host.send(Message::AnalogRecord, liveRecord().constData());
        fuel_.window->close();
        QTest::qWait(2200);
        QVERIFY(host.takeSent(Message::RequestAnalog).isEmpty());
        host.send(Message::AnalogRecord, liveRecord().constData());
    }

    // F6 and Shift+F6 remember where the focus was.
    void goesRoundByKeys()
    {
        QApplication::setActiveWindow(fuel_.window);
        auto* name = field("A3", "lineEdit_Name");
        name->setFocus();
        const auto go = [this](Qt::KeyboardModifiers with = {}) {
            QTest::keyClick(fuel_.window, Qt::Key_F6, with);
            return QApplication::focusWidget();
        };
        QCOMPARE(go()->objectName(), QString("pushButton_Load"));
        QCOMPARE(go(), name);
        QTest::keyClicks(name, "n");
        Q_EMIT name->editingFinished();
        QCOMPARE(go(Qt::ShiftModifier)->objectName(), QString("label_Notice_Action1"));
        QCOMPARE(go(Qt::ShiftModifier)->objectName(), QString("pushButton_Load"));
    }

    // Both are allowed, and seldom meant. A new row is in sight, however long the table is.
    void marksWhatRepeats()
    {
        for (int litres = 1; litres < 30; ++litres)
            add("A3", QString::number(litres), static_cast<quint16>(litres * 100));
        add("A3", "3", 450);
        add("A3", "2.5", 200);
        const auto* shown = table("A3");
        QVERIFY(shown->viewport()->rect().contains(shown->visualItemRect(shown->item(2, 0))));
        QCOMPARE(shown->item(2, 1)->toolTip(), QString("tmiw_270"));
        QCOMPARE(shown->item(4, 0)->toolTip(), QString("tmiw_269"));
        QCOMPARE(shown->item(3, 0)->toolTip() + shown->item(4, 1)->toolTip(), QString());
        editCell("A3", "0.21", 2, 1);
        QCOMPARE(shown->item(2, 1)->toolTip(), QString());
        // A reading that still changes is allowed, too, and marked where it is taken.
        QCOMPARE(field("A3", "lineEdit_Param")->toolTip(), QString());
        add("A3", "40", 5000, 1);
        QCOMPARE(field("A3", "lineEdit_Param")->toolTip(), QString("cfgt6_422"));
        const int last = shown->rowCount() - 1;
        QCOMPARE(shown->item(last, 1)->toolTip(), QString("cfgt6_423"));
        add("A3", "50", 5015, 1);
        QCOMPARE(field("A3", "lineEdit_Param")->toolTip() + shown->item(last + 1, 1)->toolTip(), QString());
        editCell("A3", "4.9", last, 1);
        QCOMPARE(shown->item(last, 1)->toolTip(), QString());
    }

    // The key asks as the button does, and leaves the marks as they were where it is not meant.
    void deletesByKey()
    {
        for (const char* litres : {"1", "2", "3", "4"})
            add("A3", litres, 1000);
        auto* shown = table("A3");
        mark("A3", 0);
        shown->setCurrentCell(2, 1);
        shown->setFocus();
        QApplication::setActiveWindow(fuel_.window);
        answerBox("wrd_002", "cfgt6_050");
        QTest::keyClick(shown, Qt::Key_Delete);
        QCOMPARE(shown->rowCount(), 4);
        QVERIFY(shown->item(0, 2)->checkState() == Qt::Checked &&
                shown->item(2, 2)->checkState() == Qt::Unchecked);
        QApplication::setActiveWindow(fuel_.window);
        answerBox("wrd_001", "cfgt6_050");
        QTest::keyClick(shown, Qt::Key_Delete);
        QCOMPARE(rows("A3"), QString("2=1.00 4=1.00"));
        // In a cell the key is that of what is typed.
        shown->editItem(shown->item(0, 0));
        auto* editor = shown->viewport()->findChild<QLineEdit*>();
        editor->selectAll();
        QTest::keyClick(editor, Qt::Key_Delete);
        QCOMPARE(editor->text(), QString());
        QTest::keyClick(editor, Qt::Key_Escape);
        QCOMPARE(rows("A3"), QString("2=1.00 4=1.00"));
    }

    // Each opening begins anew, save when rows would be lost; and tabs know what is unsaved.
    void countsWhatIsUnsaved()
    {
        add("A3", "1", 1000);
        show("D1");
        QVERIFY(!fuel_.isOn("pushButton_Save_Xml"));
        add("D1", "1", 1000);
        show("A3");
        QVERIFY(fuel_.isOn("pushButton_Save_Xml"));
        QCOMPARE(markedTabs(), QString("A3 D1"));
        saveTo("pushButton_Save_Xml", folder.filePath("out.xml"));
        QCOMPARE(markedTabs(), QString("D1"));
        add("A3", "2", 1000);
        press("pushButton_FuelSensor");
        QCOMPARE(rows("A3"), QString("1=1.00 2=1.00"));
        // Escape takes back what was typed, then closes.
        QTest::keyClicks(field("A3", "lineEdit_Volume"), "5");
        QTest::keyClick(field("A3", "lineEdit_Volume"), Qt::Key_Escape);
        QVERIFY(field("A3", "lineEdit_Volume")->text().isEmpty() && fuel_.window->isVisible());
        // A volume that was typed and not added is named: the rows are kept, it is not.
        for (const char* typed : {"77.5", ""}) {
            edit("A3", typed);
            QString hint;
            whenOpen<QMessageBox>([&hint](QMessageBox& box) {
                hint = box.informativeText();
                box.reject();
            });
            fuel_.window->close();
            QVERIFY(fuel_.window->isVisible());
            QCOMPARE(hint, QString(*typed ? "cfgt6_480\ntmiw_380" : "cfgt6_480"));
        }
        answerBox("wrd_001", kUnsaved);
        QTest::keyClick(field("A3", "lineEdit_Volume"), Qt::Key_Escape);
        QVERIFY(fuel_.window->isHidden());
        press("pushButton_FuelSensor");
        QCOMPARE(rows("A3") + rows("D1") + markedTabs(), QString());
        fuel_.window->close();
        QVERIFY(fuel_.window->isHidden());
    }

    // A cable that goes takes the live values with it, not the rows, saved or not; the chain goes on when the
    // view is back.
    void survivesTheCable()
    {
        add("A3", "1", 1000);
        saveTo("pushButton_Save_Xml", folder.filePath("out.xml"));
        window->close();
        QVERIFY(window->isHidden() && fuel_.window->isVisible());
        openAgain();
        press("pushButton_FuelSensor");
        QCOMPARE(rows("A3"), QString("1=1.00"));
        add("A3", "1", 1000);
        host.send(Message::TrackerDetached);
        QVERIFY(window->isHidden() && fuel_.window->isVisible());
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_292"));
        QCOMPARE(rows("A3"), QString("1=1.00 1=1.00"));
        edit("A3", "2");
        QVERIFY(!form("A3")->findChild<QPushButton*>("pushButton_Add")->isEnabled());
        host.send(Message::AnalogRecord, liveRecord().constData());
        QCOMPARE(field("A3", "lineEdit_Param")->text(), QString());
        host.sent.clear();
        host.attach();
        openAgain();
        QCOMPARE(host.takeSent(Message::RequestAnalog).size(), 1);
        QVERIFY(bar()->isHidden());
        host.send(Message::AnalogRecord, liveRecord().constData());
        QCOMPARE(field("A3", "lineEdit_Param")->text(), QString("12.34"));
        answerBox("wrd_001", kUnsaved);
        host.send(Message::CloseWindows);
        QVERIFY(window->isHidden() && fuel_.window->isHidden());
        open();
        press("pushButton_FuelSensor");
        host.send(Message::TrackerDetached);
        QVERIFY(fuel_.window->isHidden());
        host.attach();
        openAgain();
    }

    void asksForHelpAndPrints()
    {
        fuel_.press("pushButton_Help");
        QCOMPARE(host.sent.last().number, Message::ShowHelp);
        QCOMPARE(host.sent.last().text2, QString("r-7106Fuel.html"));
        add("A3", "10", 12340);
        field("A3", "lineEdit_Name")->setText("Tank 1");
        fuel_.press("pushButton_Print");
        WindowParts report;
        report.window = ScriptedHost::window("VLK_FormReportFuel");
        QVERIFY(report.window->isVisible());
        const QString text = report.child<QTextEdit>("textEdit_Report")->toPlainText();
        QVERIFY(text.contains("Tank 1") && text.contains("12.34") && text.contains("10.0"));
        const QPalette paper = report.child<QWidget>("textEdit_Report")->palette();
        QVERIFY(paper.color(QPalette::Base) == Qt::white && paper.color(QPalette::Text) == Qt::black);

        const QString path = folder.filePath("report.pdf");
        whenOpen<QDialog>([](QDialog& dialog) { dialog.reject(); });
        report.press("pushButton_Print");
        QVERIFY(!QFile::exists(path) && report.window->isVisible());
        whenOpen<QDialog>([path](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("filename")->setText(path);
            dialog.accept();
        });
        report.press("pushButton_Print");
        QVERIFY(readFile(path).startsWith("%PDF"));
        report.window->close();
    }

    void retranslates()
    {
        host.send(Message::LanguageChanged);
        QCOMPARE(fuel_.window->windowTitle(), QString("tmiw_119"));
    }
};

QTEST_MAIN(FuelWindowTest)
#include "tst_fuel_window.moc"
