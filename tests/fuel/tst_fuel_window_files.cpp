// Calibration tables to files and from them, and what is kept of them unsaved.

#include "base/file_claim.h"
#include "fuel_window.h"
#include "support/data_table.h"
#include "support/full_disk.h"

namespace {

QByteArray fuelFile(const QByteArray& type, const QByteArray& model = "R-7106",
                    const QByteArray& root = "FUEL")
{
    return '<' + root + " model=\"" + model + "\" type=\"" + type +
           "\"><Name_A1>rear</Name_A1><TABLE><DATA param_U=\"20\" param_V=\"8\"/>"
           "<DATA param_U=\"10\" param_V=\"7,5\"/></TABLE></" +
           root + '>';
}

} // namespace

class FuelWindowFilesTest : public QObject, private FuelWindow
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startFuel(); }
    void init() { openFuel(); }
    void cleanup() { closeFuel(); }

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

    // Whoever closes over a calibration that is in no file at all may think better of it.
    void keepsWhatWasNeverSaved()
    {
        add("A3", "10.5", 12340);
        answerBox("wrd_001", kUnsaved);
        fuel_.window->close();
        QVERIFY(fuel_.window->isHidden());
        press("pushButton_FuelSensor");
        QVERIFY(rows("A3").isEmpty());
        QCOMPARE(fuel_.text("label_Notice"), QString("cfgt6_405"));
        pressInBar("cfgt6_406");
        QCOMPARE(rows("A3"), QString("10.5=12.34"));
        // As unsaved as it was: nothing is said of a file that there never was.
        QVERIFY(bar()->isHidden() && fuel_.isOn("pushButton_Save_Xml"));
        // What is doubtful of it is kept, too.
        host.send(Message::AnalogRecord, liveRecord().constData());
        add("A3", "20", 15000, 1);
        const auto* shown = table("A3");
        QCOMPARE(shown->item(1, 1)->toolTip(), QString("cfgt6_423"));
        answerBox("wrd_001", kUnsaved);
        fuel_.window->close();
        press("pushButton_FuelSensor");
        pressInBar("cfgt6_406");
        QCOMPARE(rows("A3"), QString("10.5=12.34 20=15.00"));
        QCOMPARE(shown->item(0, 1)->toolTip() + shown->item(1, 1)->toolTip(), QString("cfgt6_423"));
        // Discarded it is gone for good.
        answerBox("wrd_001", kUnsaved);
        fuel_.window->close();
        press("pushButton_FuelSensor");
        pressInBar("cfgt6_407");
        fuel_.window->close();
        press("pushButton_FuelSensor");
        QVERIFY(bar()->isHidden() && QDir(folder.filePath(".unsaved")).isEmpty());
    }

    // A file says nothing of a reading that still changed: it is told when it is saved, and remembered.
    void remembersWhatStillChanged_data()
    {
        // Rows of a CSV file wait for an XML file: others are put in their place on a question alone.
        DataTable<QString, QString, QString>({"kind", "button", "box"})
            .row("XML", "xml", "pushButton_Save_Xml", "")
            .row("CSV", "csv", "pushButton_Save_Excel", "tmiw_129");
    }
    void remembersWhatStillChanged()
    {
        QFETCH(QString, kind);
        QFETCH(QString, button);
        QFETCH(QString, box);
        add("A3", "10", 12340);
        add("A3", "20", 15000, 1);
        const QString path = folder.filePath("unsteady." + kind);
        saveTo(qPrintable(button), path);
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_360"));
        const QString moved = folder.filePath("moved." + kind);
        QVERIFY(QFile::rename(path, moved));
        answerBox("wrd_001");
        form("A3")->findChild<QPushButton*>("pushButton_Clear")->click();
        load(moved);
        const auto* shown = table("A3");
        QCOMPARE(shown->item(1, 1)->toolTip(), QString("cfgt6_423"));
        // Another table is none of it, be it one point more.
        const QByteArray content = readFile(moved);
        load(writeFile(moved, QByteArray(content).replace("15.00", "15.01")), box, "wrd_001");
        QCOMPARE(shown->item(1, 1)->toolTip(), QString());
        // Measured again, to the same value, it is as sound as any.
        editCell("A3", "15.00", 1, 1);
        answerFile(moved);
        box.isEmpty() ? pressInBar("wrd_042 XML") : fuel_.press(qPrintable(button));
        QCOMPARE(readFile(moved), content);
        load(moved, box, "wrd_001");
        QCOMPARE(rows("A3"), QString("10=12.34 20=15.00"));
        QCOMPARE(shown->item(1, 1)->toolTip(), QString());
    }

    // So does one that is saved, though not with its fractions.
    void keepsWhatAFileHasCut()
    {
        add("A3", "10.5", 12340);
        saveTo("pushButton_Save_Xml", folder.filePath("cut.xml"));
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_264"));
        fuel_.window->close();
        press("pushButton_FuelSensor");
        pressInBar("cfgt6_406");
        QVERIFY(rows("A3") == "10.5=12.34" && !fuel_.isOn("pushButton_Save_Xml"));
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_264"));
    }

    // The name of the file goes with the table, whether it was taken or not.
    void keepsTheOfferedName()
    {
        const QByteArray content = fuelFile("A3").replace("Name_A1", "Name");
        load(writeFile(folder.filePath("named.xml"), content));
        auto* tank = field("A3", "lineEdit_Name");
        QVERIFY(tank->text().isEmpty() && tank->placeholderText().startsWith("rear ("));
        editCell("A3", "11");
        fuel_.window->close();
        press("pushButton_FuelSensor");
        QVERIFY(tank->placeholderText().isEmpty());
        pressInBar("cfgt6_406");
        QVERIFY(tank->text().isEmpty() && tank->placeholderText().startsWith("rear ("));
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
        const QRect before = fuel_.child<QWidget>("scrollArea_Content")->geometry();
        editCell("A3", "10.5");
        QCOMPARE(fuel_.text("label_Notice"), QString("cfgt6_404"));
        QCOMPARE(fuel_.child<QWidget>("scrollArea_Content")->geometry(), before);
        show("D1");
        QVERIFY(bar()->isHidden());
        show("A3");
        answerFile(folder.filePath("edited.xml"));
        pressInBar("wrd_042 XML");
        // The file has whole litres, which is told until a file has all.
        QVERIFY(readFile(folder.filePath("edited.xml")).contains("param_U=\"10\""));
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_264"));
        QCOMPARE(markedTabs(), QString("A3"));
        answerFile(folder.filePath("edited.csv"));
        pressInBar("wrd_042 Excel");
        QCOMPARE(markedTabs(), QString());
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
        QVERIFY(rows("A3") == "20=8" && noticePlace()->text() == "wrd_401");
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
        saveTo("pushButton_Save_Excel", folder.filePath("edited.csv"));
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
        // Fractions are in no XML file, whether the user goes on to read of them or not.
        saveTo("pushButton_Save_Xml", folder.filePath("out.xml"));
        fuel_.press("label_Notice_Close");
        QTest::qWait(600);
        QVERIFY(readFile(only()).contains("\"10.5\"") && markedTabs() == "A3");
        saveTo("pushButton_Save_Excel", folder.filePath("out.csv"));
        QTRY_VERIFY_WITH_TIMEOUT(drafts.isEmpty(), 1000);
        QTest::keyClicks(field("D1", "lineEdit_Name"), "left");
        fuel_.window->close();
        writeFile(drafts.filePath("killed.xml"), asKilled);
        {
            const vlk::FileClaim ofOtherProgram(drafts.filePath("killed.xml"));
            press("pushButton_FuelSensor");
            QVERIFY(bar()->isVisible() && noticePlace()->isHidden());
            fuel_.window->close();
        }
        const QByteArray killedOne = "2147483647\nworkbench\n" + QSysInfo::machineHostName().toUtf8() + '\n';
        writeFile(drafts.filePath(".killed.xml.lock"), killedOne);
        press("pushButton_FuelSensor");
        QCOMPARE(noticePlace()->text(), QString("wrd_401"));
        // The one that is still offered stands before what can be done with the first.
        for (const int left : {1, 0}) {
            pressInBar("cfgt6_406");
            QCOMPARE(fuel_.isOn("pushButton_Save_Xml"), left > 0);
        }
        QCOMPARE(rows("A3") + field("D1", "lineEdit_Name")->text(), QString("10.5=12.34 20=12.34left"));
        // Whoever has closed the bar saves by the key.
        fuel_.press("label_Notice_Close");
        QVERIFY(fuel_.isOn("pushButton_Save_Xml"));
        answerFile(folder.filePath("out.xml"));
        QApplication::setActiveWindow(fuel_.window);
        QTest::keyClick(fuel_.window, Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE_WITH_TIMEOUT(drafts.entryList(QDir::Files).size(), 1, 1000);
    }

    // The name begins with the sensor that it is of; the rows wait for an XML file.
    void loadsItsOwnCsv()
    {
        add("D2", "10,5", 7);
        const QString path = folder.filePath("D4-Truck 7.csv");
        saveTo("pushButton_Save_Excel", path);
        load(path);
        QVERIFY(rows("D4") == "10.5=1002" && form("D4")->isVisible() && fuel_.isOn("pushButton_Save_Xml"));
        load(writeFile(folder.filePath("F1-.csv"), "Volume, l;level\n1;7\n"), "tmiw_129", "wrd_001");
        QVERIFY(rows("D4") == "1=7" && fuel_.text("label_Notice") == "cfgt6_412");
        load(writeFile(folder.filePath("x.csv"), "Voltage, V;litres\n7;1\n"), "tmiw_129", "wrd_001");
        QVERIFY(rows("D4") == "1=7" && fuel_.text("label_Notice") == "tmiw_301");
        load(writeFile(folder.filePath("x.csv"), "7;1\n8;2\n"), "rec_370");
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
            // So is one for which the tab has changed.
            const bool isOther =
                content.contains("\"D9\"") || content.contains("\"F1\"") || sensor.startsWith('D');
            QCOMPARE(!bar()->isHidden() && fuel_.text("label_Notice") == "cfgt6_412", isOther);
            answerBox("wrd_001");
            form(sensor)->findChild<QPushButton*>("pushButton_Clear")->click();
            QVERIFY(bar()->isHidden());
        }
        QCOMPARE(readFile(path), content);
    }

    // A volume that was typed and not added goes with them, which is told.
    void asksBeforeRowsAreReplaced()
    {
        add("A3", "1", 1000);
        QTest::keyClicks(field("A3", "lineEdit_Volume"), "20,5");
        const QString path = writeFile(folder.filePath("load.xml"), fuelFile("A3"));
        load(path, "tmiw_129", "wrd_031");
        QCOMPARE(rows("A3"), QString("1=1.00"));
        QVERIFY(fuel_.text("label_Notice") != "tmiw_380");
        load(path, "tmiw_129", "wrd_001");
        QCOMPARE(rows("A3"), QString("10=7.5 20=8"));
        QCOMPARE(fuel_.text("label_Notice"), QString("tmiw_380"));
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
};

QTEST_MAIN(FuelWindowFilesTest)
#include "tst_fuel_window_files.moc"
