// The calibration window over the telemetry view, as host and user see it.

#include "base/file_claim.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "support/full_disk.h"
#include "telemetry/opened_view.h"

#include <QtTest>
#include <QtWidgets>

using vlk::Message;

namespace {

const QString kUnsaved = QStringLiteral("wrd_005!<br>tmiw_130 tmiw_131<br>tmiw_132");

// The record of the live values, each sensor with a value of its own: D1 1001, D2 1002...
QByteArray liveRecord()
{
    QByteArray record(vlk::kAnalogRecordSize, '\x7f');
    const auto put = [&record](int at, quint16 value) { qToLittleEndian(value, record.data() + at); };
    put(19, 12340);
    for (int i = 0; i < 6; ++i)
        put(25 + 3 * i, quint16(1001 + i));
    return record;
}

QByteArray fuelFile(const QByteArray& type, const QByteArray& model = "R-7106",
                    const QByteArray& root = "FUEL")
{
    return '<' + root + " model=\"" + model + "\" type=\"" + type +
           "\"><Name_A1>rear</Name_A1><TABLE><DATA param_U=\"20\" param_V=\"8\"/>"
           "<DATA param_U=\"10\" param_V=\"7,5\"/></TABLE></" +
           root + '>';
}

} // namespace

class FuelWindowTest : public QObject, private OpenedView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        start("<TRANS><OBJECT name=\"Truck: 7\"/></TRANS>");
        open();
        const vlk::Paths paths{folder.path(), {}, {}, {}};
        host.send(Message::SetPaths, &paths);
    }

    void init()
    {
        press("pushButton_FuelSensor");
        fuel_.window = ScriptedHost::window("VLK_Form_TMI_Fuel_Sensors");
        QVERIFY(fuel_.window->isVisible());
        show("A3");
    }

    void cleanup()
    {
        // Where rows are unsaved there is a question first.
        const QPointer<QTimer> answer = answerBox("wrd_001");
        fuel_.window->close();
        delete answer;
        QVERIFY(fuel_.window->isHidden());
        QDir(folder.filePath(".unsaved")).removeRecursively();
    }

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

    void savesAsXml()
    {
        const auto* note = form("A3")->findChild<QLabel*>("label_Empty");
        QVERIFY(note->isVisible() && note->text() == "tmiw_291");
        add("A3", "10,5", 12340);
        add("A3", "5", 900);
        QVERIFY(!note->isVisible());
        QVERIFY(fuel_.isOn("pushButton_Save_Xml"));
        field("A3", "lineEdit_Name")->setText("left");
        QString proposed;
        const QString path = folder.filePath("saved.xml");
        writeFile(path, "no document");
        fuel_.child<QWidget>("pushButton_Save_Xml")->setFocus();
        saveTo("pushButton_Save_Xml", path, &proposed);
        QVERIFY(fuel_.window->focusWidget() == field("A3", "lineEdit_Volume"));
        static const QRegularExpression name(
            "/A3-Truck 7\\(\\d{4}-\\d\\d-\\d\\d \\d\\d_\\d\\d_\\d\\d\\)\\.xml$");
        QVERIFY2(name.match(proposed).hasMatch() && proposed.startsWith(folder.path()), qPrintable(proposed));
        QCOMPARE(readFile(path), QByteArray("<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n"
                                            "<FUEL model=\"R-7106\" type=\"A3\">\n"
                                            "\t<objName>Truck: 7</objName>\n"
                                            "\t<Name>left</Name>\n"
                                            "\t<TABLE>\n"
                                            "\t\t<DATA param_U=\"5\" param_V=\"0.90\"/>\n"
                                            "\t\t<DATA param_U=\"10\" param_V=\"12.34\"/>\n"
                                            "\t</TABLE>\n"
                                            "</FUEL>\n"));
        QVERIFY(!fuel_.isOn("pushButton_Save_Xml"));
        load(path);
        QCOMPARE(rows("A3"), QString("5=0.90 10=12.34"));
        // The name of the file waits in the field for one key.
        auto* tank = field("A3", "lineEdit_Name");
        QCOMPARE(tank->text(), QString());
        QVERIFY(tank->placeholderText().startsWith("left ("));
        QTest::keyClick(tank, Qt::Key_Right);
        QCOMPARE(tank->text(), QString("left"));
        load(writeFile(path, fuelFile("A3")));
        QVERIFY(tank->placeholderText().isEmpty());
    }

    // What could not be saved stays unsaved, and the file stays as it was.
    void keepsWhatADiskRefuses()
    {
        add("A3", "10", 1000);
        const QString path = writeFile(folder.filePath("full.xml"), "as it was");
        {
            const FullDisk full(16);
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression("^" + QRegularExpression::escape(path) + ": "));
            saveTo("pushButton_Save_Xml", path);
        }
        QCOMPARE(readFile(path), QByteArray("as it was"));
        QVERIFY(fuel_.isOn("pushButton_Save_Xml"));
        answerBox("wrd_031", kUnsaved);
        fuel_.window->close();
        QVERIFY(fuel_.window->isVisible());
    }

    // What sets no flag is told in the bar, and offered anew when the window was closed over it.
    void keepsWhatWasEdited()
    {
        const QString path = writeFile(folder.filePath("load.xml"), fuelFile("A3"));
        load(path);
        QVERIFY(bar()->isHidden());
        editCell("A3", "10.5");
        QCOMPARE(fuel_.text("label_Notice"), QString("cfgt6_404"));
        show("D1");
        QVERIFY(bar()->isHidden());
        show("A3");
        answerFile(folder.filePath("edited.xml"));
        pressInBar("wrd_042 XML");
        // The file has whole litres, which is told until a file has all.
        QVERIFY(readFile(folder.filePath("edited.xml")).contains("param_U=\"10\""));
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_264"));
        answerFile(folder.filePath("edited.csv"));
        pressInBar("wrd_042 Excel");
        QVERIFY(bar()->isHidden() && readFile(folder.filePath("edited.csv")).contains(";10.5"));
        {
            const FullDisk full(16);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unsaved"));
            editCell("A3", "11.5");
            answerBox("wrd_031", kUnsaved);
            fuel_.window->close();
            QVERIFY(fuel_.window->isVisible());
        }
        fuel_.window->close();
        QVERIFY(fuel_.window->isHidden());
        press("pushButton_FuelSensor");
        QVERIFY(rows("A3").isEmpty());
        QCOMPARE(fuel_.text("label_Notice"), QString("cfgt6_405"));
        show("D1");
        pressInBar("cfgt6_406");
        QCOMPARE(rows("A3"), QString("11.5=7.5 20=8"));
        QCOMPARE(field("A3", "lineEdit_Name")->text(), QString("rear"));
        // The last edit is offered beside the one that it replaced on the screen.
        load(path);
        QCOMPARE(rows("A3"), QString("10=7.5 20=8"));
        mark("A3", 0);
        answerBox("wrd_001");
        form("A3")->findChild<QPushButton*>("pushButton_Del")->click();
        QVERIFY(rows("A3") == "20=8" && fuel_.text("label_NoticePlace") == "wrd_401");
        fuel_.window->close();
        press("pushButton_FuelSensor");
        // One is brought back and saved, the other given up.
        QApplication::setActiveWindow(fuel_.window);
        QTest::keyClick(fuel_.window, Qt::Key_F6);
        QVERIFY(bar()->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QVERIFY(!rows("A3").isEmpty());
        pressInBar("cfgt6_407");
        answerFile(folder.filePath("edited.xml"));
        pressInBar("wrd_042 XML");
        fuel_.window->close();
        press("pushButton_FuelSensor");
        QVERIFY(bar()->isHidden() && QDir(folder.filePath(".unsaved")).isEmpty());
    }

    // What is not saved outlives a program that is killed, be it a name alone; only its owner can read it.
    void keepsDrafts()
    {
        const QDir drafts(folder.filePath(".unsaved"));
        const auto only = [&drafts] { return drafts.filePath(drafts.entryList(QDir::Files).value(0)); };
        add("A3", "10.5", 12340);
        QTRY_COMPARE_WITH_TIMEOUT(drafts.entryList(QDir::Files).size(), 1, 1000);
        add("A3", "20", 12340);
        QTRY_VERIFY_WITH_TIMEOUT(readFile(only()).contains("\"20\""), 1000);
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(only()) & others) && !(QFile::permissions(drafts.path()) & others));
        const QByteArray asKilled = readFile(only());
        saveTo("pushButton_Save_Xml", folder.filePath("out.xml"));
        QTRY_VERIFY_WITH_TIMEOUT(drafts.isEmpty(), 1000);
        QTest::keyClicks(field("D1", "lineEdit_Name"), "left");
        fuel_.window->close();
        writeFile(drafts.filePath("killed.xml"), asKilled);
        {
            const vlk::FileClaim ofOtherProgram(drafts.filePath("killed.xml"));
            press("pushButton_FuelSensor");
            QVERIFY(bar()->isVisible() && fuel_.child("label_NoticePlace")->isHidden());
            fuel_.window->close();
        }
        const QByteArray killedOne = "2147483647\nworkbench\n" + QSysInfo::machineHostName().toUtf8() + '\n';
        writeFile(drafts.filePath(".killed.xml.lock"), killedOne);
        press("pushButton_FuelSensor");
        QCOMPARE(fuel_.text("label_NoticePlace"), QString("wrd_401"));
        // The one that is still offered stands before what can be done with the first.
        for (const int left : {1, 0}) {
            pressInBar("cfgt6_406");
            QCOMPARE(fuel_.isOn("pushButton_Save_Xml"), left > 0);
        }
        QCOMPARE(rows("A3") + field("D1", "lineEdit_Name")->text(), QString("10.5=12.34 20=12.34left"));
        // Whoever has closed the bar saves by the key.
        show("A3");
        fuel_.press("label_Notice_Close");
        QVERIFY(fuel_.isOn("pushButton_Save_Xml"));
        answerFile(folder.filePath("out.xml"));
        QApplication::setActiveWindow(fuel_.window);
        QTest::keyClick(fuel_.window, Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(drafts.entryList(QDir::Files).size(), 1, 1000);
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
            add("A3", QString::number(litres), quint16(litres * 100));
        add("A3", "3", 450);
        add("A3", "2.5", 200);
        const auto* shown = table("A3");
        QVERIFY(shown->viewport()->rect().contains(shown->visualItemRect(shown->item(2, 0))));
        QCOMPARE(shown->item(2, 1)->toolTip(), QString("tmiw_270"));
        QCOMPARE(shown->item(4, 0)->toolTip(), QString("tmiw_269"));
        QCOMPARE(shown->item(3, 0)->toolTip() + shown->item(4, 1)->toolTip(), QString());
        editCell("A3", "0.21", 2, 1);
        QCOMPARE(shown->item(2, 1)->toolTip(), QString());
    }

    // Of the sensor that begins its name; the rows wait for an XML file.
    void loadsItsOwnCsv()
    {
        add("D2", "10,5", 7);
        const QString path = folder.filePath("D4-Truck 7.csv");
        saveTo("pushButton_Save_Excel", path);
        load(path);
        QVERIFY(rows("D4") == "10.5=1002" && form("D4")->isVisible() && fuel_.isOn("pushButton_Save_Xml"));
        load(writeFile(folder.filePath("F1-.csv"), "x;y\r\n7;1\r\n"), "tmiw_129", "wrd_001");
        QVERIFY(rows("D4") == "1=7" && fuel_.text("label_Notice") == "cfgt6_412");
        // Nothing is asked for the sake of a file with nothing in it.
        const QString none = writeFile(folder.filePath("none.csv"), QByteArray(9, '\0'));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("holds no calibration table"));
        load(none);
        QCOMPARE(rows("D4"), QString("1=7"));
    }

    void savesAsCsv()
    {
        add("D2", "10,5", 7);
        QString proposed;
        QVERIFY(QDir(folder.path()).mkpath("elsewhere"));
        const QString path = folder.filePath("elsewhere/saved.csv");
        saveTo("pushButton_Save_Excel", path, &proposed);
        QVERIFY(proposed.contains("/D2-Truck 7(") && proposed.endsWith(".csv"));
        // Files begin where the last one went; a sheet is named as they are.
        saveTo("pushButton_Pdf", folder.filePath("sheet.pdf"), &proposed);
        QVERIFY(proposed.contains("/elsewhere/D2-Truck 7(") && proposed.endsWith(".pdf"));
        const QByteArray sheet = readFile(folder.filePath("sheet.pdf"));
        QVERIFY(sheet.startsWith("%PDF") && sheet.contains("/Image"));
        QCOMPARE(readFile(path), QByteArray("cfgt6_044;cfgt6_040\r\n1002;10.5\r\n"));
        QVERIFY(fuel_.isOn("pushButton_Save_Xml"));
    }

    void loads_data()
    {
        DataTable<QByteArray, QString, QString>({"content", "sensor", "box"})
            .row("A3", fuelFile("A3"), "A3", "")
            .row("D4", fuelFile("D4"), "D4", "")
            .row("no such sensor", fuelFile("D9"), "D2", "")
            .row("group", fuelFile("D"), "D2", "")
            .row("group that is not here", fuelFile("F1"), "A3", "")
            .row("no type", fuelFile(""), "A3", "")
            .row("no letter", fuelFile("\xc3\x84"), "A3", "")
            .row("other model", fuelFile("A3", "R-1"), "", "tmiw_128")
            .row("other root", fuelFile("A3", "R-7106", "DEVICE"), "", "tmiw_128")
            .row("empty", "", "", "tmiw_128")
            .row("malformed", fuelFile("A3").chopped(9), "", "")
            .row("too long",
                 "<FUEL model=\"R-7106\"><TABLE>" + QByteArray("<DATA/>").repeated(20'001) +
                     "</TABLE></FUEL>",
                 "", "")
            .row("too large",
                 "<FUEL model=\"R-7106\"><TABLE>" + QByteArray("<DATA/>").repeated(1'000'000) +
                     "</TABLE></FUEL>",
                 "", "");
    }
    void loads()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, sensor);
        QFETCH(QString, box);
        show("D2");
        show("A3");
        add("A3", "1", 1000);
        saveTo("pushButton_Save_Xml", folder.filePath("out.xml"));
        const QString path = writeFile(folder.filePath("load.xml"), content);
        load(path, box);
        if (sensor.isEmpty()) {
            QCOMPARE(rows("A3"), QString("1=1.00"));
        } else {
            QCOMPARE(rows(sensor), QString("10=7.5 20=8"));
            QCOMPARE(field(sensor, "lineEdit_Name")->text(), QString("rear"));
            QVERIFY(form(sensor)->isVisible());
            // A file of another sensor is told, until the table is gone.
            const bool isOther = content.contains("\"D9\"") || content.contains("\"F1\"");
            QCOMPARE(!bar()->isHidden() && fuel_.text("label_Notice") == "cfgt6_412", isOther);
            answerBox("wrd_001");
            form(sensor)->findChild<QPushButton*>("pushButton_Clear")->click();
            QVERIFY(bar()->isHidden());
        }
        QCOMPARE(readFile(path), content);
    }

    void asksBeforeRowsAreReplaced()
    {
        add("A3", "1", 1000);
        const QString path = writeFile(folder.filePath("load.xml"), fuelFile("A3"));
        load(path, "tmiw_129", "wrd_031");
        QCOMPARE(rows("A3"), QString("1=1.00"));
        load(path, "tmiw_129", "wrd_001");
        QCOMPARE(rows("A3"), QString("10=7.5 20=8"));
        QVERIFY(!fuel_.isOn("pushButton_Save_Xml"));
    }

    // What is no number is told until the cell has one.
    void tellsWhatIsNoNumber()
    {
        load(writeFile(folder.filePath("load.xml"), fuelFile("A3").replace("\"8\"", "\"abc\"")));
        QCOMPARE(rows("A3"), QString("10=7.5 20=abc"));
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_265"));
        editCell("A3", "8", 1, 1);
        QCOMPARE(fuel_.text("label_Notice"), QString("cfgt6_404"));
        load(writeFile(folder.filePath("load.xml"), fuelFile("A3")));
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

private:
    QWidget* form(const QString& sensor) { return fuel_.child<QWidget>(sensor); }
    QLineEdit* edit(const char* name) { return fuel_.child<QLineEdit>(name); }
    QLineEdit* field(const QString& sensor, const char* name)
    {
        return form(sensor)->findChild<QLineEdit*>(name);
    }
    void edit(const QString& sensor, const QString& volume)
    {
        field(sensor, "lineEdit_Volume")->setText(volume);
    }
    void show(const QString& sensor)
    {
        auto* groups = fuel_.child<QTabWidget>("tabWidget");
        const bool analogue = sensor.startsWith('A');
        groups->setCurrentIndex(analogue ? 0 : 1);
        auto* group = qobject_cast<QTabWidget*>(groups->currentWidget());
        group->setCurrentIndex(analogue ? 0 : sensor.midRef(1).toInt() - 1);
    }
    // Pours, waits for the live value and adds the point.
    void add(const QString& sensor, const QString& volume, quint16 millivolts)
    {
        show(sensor);
        QByteArray record = liveRecord();
        qToLittleEndian(millivolts, record.data() + 19);
        host.send(Message::AnalogRecord, record.constData());
        edit(sensor, volume);
        form(sensor)->findChild<QPushButton*>("pushButton_Add")->click();
    }
    // Of those whose group is marked too.
    QString markedTabs()
    {
        QStringList names;
        auto* groups = fuel_.child<QTabWidget>("tabWidget");
        for (int i = 0; i < groups->count(); ++i) {
            auto* group = qobject_cast<QTabWidget*>(groups->widget(i));
            for (int at = 0; at < group->count(); ++at)
                if (!group->tabIcon(at).isNull() && !groups->tabIcon(i).isNull())
                    names << group->widget(at)->objectName();
        }
        return names.join(' ');
    }
    QWidget* bar() { return fuel_.child<QWidget>("noticeBar"); }
    void pressInBar(const QString& caption)
    {
        for (auto* button : bar()->findChildren<QPushButton*>())
            if (!button->isHidden() && button->text() == caption)
                return button->click();
        qFatal("no button %s", qPrintable(caption));
    }
    QTableWidget* table(const QString& sensor)
    {
        return form(sensor)->findChild<QTableWidget*>("tableWidget");
    }
    void mark(const QString& sensor, int row) { table(sensor)->item(row, 2)->setCheckState(Qt::Checked); }
    void editCell(const QString& sensor, const QString& number, int row = 0, int column = 0)
    {
        table(sensor)->editItem(table(sensor)->item(row, column));
        auto* editor = table(sensor)->viewport()->findChild<QLineEdit*>();
        editor->selectAll();
        QTest::keyClicks(editor, number);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!table(sensor)->viewport()->findChild<QLineEdit*>());
    }
    QString rows(const QString& sensor)
    {
        return rowsOf(form(sensor)->findChild<QTableWidget*>("tableWidget"));
    }
    void saveTo(const char* button, const QString& path, QString* proposed = nullptr)
    {
        answerFile(path, proposed);
        fuel_.press(button);
    }
    // With a box that comes after the file dialog.
    void load(const QString& path, const QString& box = {}, const QString& button = "wrd_003")
    {
        answerFile(path);
        if (!box.isEmpty())
            answerBox(button, box);
        fuel_.press("pushButton_Load");
    }

    WindowParts fuel_;
};

QTEST_MAIN(FuelWindowTest)
#include "tst_fuel_window.moc"
