// The editor of one calibration table in the dialog of an RS sensor: points by hand, files, clipboard, curve.

#include "base/clock.h"
#include "fuel/calibration_sheet.h"
#include "fuel/form_fuel_sensor.h"
#include "fuel/form_fuel_view.h"
#include "fuel/fuelsensor_graph.h"
#include "support/answers.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/window_parts.h"
#include "xml/xml_document.h"
#include "xml/xml_section.h"

#include <QtTest>
#include <QtWidgets>

Q_DECLARE_METATYPE(vlk::FuelRow)

class FuelEditorTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        dialog_ = std::make_unique<VLK_Form_Fuel_View>();
        window = dialog_.get();
        dialog_->setSensor(1, "D3");
        dialog_->show();
        dialog_->resize(900, 540);
        graph_ = child<VLK_FuelSensor_Graph>(QString());
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    void cleanup() { dialog_.reset(); }

    void addsPoints()
    {
        QCOMPARE(child<QLineEdit>("lineEdit_Name")->text(), QString("D3"));
        QCOMPARE(child<QLineEdit>("lineEdit_Param")->text(), QString("0"));
        QVERIFY(!isOn("pushButton_Add") && !isOn("pushButton_Clear") && !isOn("pushButton_Del"));
        type("20", "8");
        QVERIFY(isOn("pushButton_Clear") && child<QLineEdit>("lineEdit_Volume")->hasFocus());
        QCOMPARE(child<QLineEdit>("lineEdit_Volume")->text(), QString());
        type("10,5", "5");
        type("10.5", "6");
        type("7", "");
        QVERIFY(!isOn("pushButton_Add"));
        child<QLineEdit>("lineEdit_Volume")->clear();
        type("", "3");
        QCOMPARE(rows(), QString("10.5=5 10.5=6 20=8"));
        // Fields take what their validators accept, and Enter nothing else.
        type("0,55", "7");
        type("1", "70000");
        type("1", "2,5");
        QCOMPARE(child<QLineEdit>("lineEdit_Param")->toolTip(), QString("typed_unfit"));
        type(".", "1");
        QCOMPARE(rows(), QString("10.5=5 10.5=6 20=8"));
        QMap<double, int> map{{99, 1}};
        dialog_->getData(map);
        QCOMPARE(map.value(10.5), 6);
        QVERIFY(!map.contains(99));
    }

    // With either decimal sign Escape leaves the field as it was entered, and a number that ends with one has
    // none in the table.
    void takesBackWhatWasTyped_data()
    {
        DataTable<QString, QString>({"typed", "row"})
            .row("a point", "77.5", "77.5=0")
            .row("a comma", "77,5", "77.5=0")
            .row("a point at the end", "12.", "12=0")
            .row("a comma at the end", "12,", "12=0");
    }
    void takesBackWhatWasTyped()
    {
        QFETCH(QString, typed);
        QFETCH(QString, row);
        QApplication::setActiveWindow(window);
        auto* volume = child<QLineEdit>("lineEdit_Volume");
        volume->setFocus();
        for (const char* left : {"", "3"}) {
            volume->setText(left);
            QTest::keyClicks(volume, typed);
            QTest::keyClick(volume, Qt::Key_Escape);
            QCOMPARE(volume->text(), QString(left));
            QCOMPARE(isOn("pushButton_Add"), left[0] != '\0');
        }
        volume->setText({});
        QTest::keyClicks(volume, typed);
        QTest::keyClick(volume, Qt::Key_Return);
        QCOMPARE(rows(), row);
        editCell(0, 0, typed + '0', Qt::Key_Return);
        editCell(0, 0, typed, Qt::Key_Return);
        QCOMPARE(rows(), row);
    }

    void editsCells()
    {
        dialog_->setData("title", {{10, 100}, {20, 200}, {30.5, 300}});
        QCOMPARE(rows(), QString("10=100 20=200 30.5=300"));
        auto* table = child<QTableWidget>("tableWidget");
        table->item(0, 2)->setCheckState(Qt::Checked);
        QVERIFY(isOn("pushButton_Del"));
        editCell(0, 0, "25,5", Qt::Key_Return);
        QCOMPARE(rows(), QString("20=200 25.5=100 30.5=300"));
        QCOMPARE(table->item(1, 2)->checkState(), Qt::Checked);
        editCell(0, 0, "7", Qt::Key_Escape);
        editCell(0, 0, "6000", Qt::Key_Enter);
        editCell(0, 1, "70000", Qt::Key_Enter);
        QCOMPARE(rows(), QString("20=200 25.5=100 30.5=300"));
        answerBox("wrd_002");
        press("pushButton_Del");
        QCOMPARE(table->rowCount(), 3);
        answerBox("wrd_001");
        child<QWidget>("pushButton_Del")->setFocus();
        press("pushButton_Del");
        QVERIFY(window->focusWidget() == table);
        QCOMPARE(rows(), QString("20=200 30.5=300"));
        QVERIFY(!isOn("pushButton_Del") && isOn("pushButton_Clear"));
        // They can be had back, and what is asked names them.
        QApplication::setActiveWindow(window);
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(rows(), QString("20=200 25.5=100 30.5=300"));
        table->setCurrentCell(1, 0);
        QString hint;
        whenOpen<QMessageBox>([&hint](QMessageBox& box) {
            hint = box.informativeText();
            for (auto* button : box.findChildren<QPushButton*>()) {
                if (button->text() == "wrd_001")
                    return button->click();
            }
        });
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(hint, QString("tmiw_400"));
        QCOMPARE(rows(), QString("20=200 30.5=300"));
        answerBox("wrd_001");
        press("pushButton_Clear");
        QVERIFY(rows().isEmpty() && !isOn("pushButton_Clear"));
        // The application's own locale is left alone.
        QCOMPARE(QLocale().language(), QLocale::system().language());
    }

    void sortsWhatIsNoNumber()
    {
        form()->addRows({{"5", "1"}, {"x", "2"}, {"-1", "3"}, {"3", ""}, {"4", "4"}});
        QCOMPARE(rows(), QString("-1=3 x=2 3= 4=4 5=1"));
    }

    void csvFiles()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("table.csv");
        dialog_->setData("t", {{10.5, 100}, {20, 200}});
        form()->saveCsv(path);
        QCOMPARE(readFile(path), QByteArray("cfgt6_044;cfgt6_040\r\n100;10.5\r\n200;20\r\n"));
        answerFile(path);
        press("pushButton_Open");
        QCOMPARE(rows(), QString("10.5=100 10.5=100 20=200 20=200"));
        QVERIFY(!form()->isDirty());
        for (const char* none : {"none.csv", "binary.csv"}) {
            writeFile(folder.filePath("binary.csv"), QByteArray(100, '\0'));
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot open|holds no"));
            form()->loadCsv(folder.filePath(none));
        }
        QCOMPARE(child<QTableWidget>("tableWidget")->rowCount(), 4);
        vlk::setClock([] { return QDateTime({2026, 5, 7}, {14, 3, 9}); });
        child<QLineEdit>("lineEdit_Title")->setText("v1.2/3");
        QString proposed;
        answerFile({}, &proposed);
        press("pushButton_Save");
        QCOMPARE(proposed, QString("/D3-v1.23(2026-05-07 14_03_09).csv"));
        vlk::setClock({});
    }

    void clipboard()
    {
        dialog_->setData("t", {{10, 100}});
        auto* table = child<QTableWidget>("tableWidget");
        QApplication::setActiveWindow(window);
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("cfgt6_040\tcfgt6_044\n10\t100\n"));
        QGuiApplication::clipboard()->setText("words");
        answerBox("wrd_003");
        QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(!form()->isDirty());
        QGuiApplication::clipboard()->setText("h\n1\tx\n");
        answerBox("wrd_003", "cfgt6_411 cfgt6_424");
        QApplication::setActiveWindow(window);
        QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
        QGuiApplication::clipboard()->setText("5,5\t7\n1\t2\n1\t70000\n");
        for (const Qt::Key answer : {Qt::Key_Escape, Qt::Key_Return}) {
            // From the table, or the field in which a single number would be pasted.
            QWidget* at = answer == Qt::Key_Return ? child<QWidget>("lineEdit_Volume") : table;
            QVERIFY(!form()->isDirty());
            QApplication::setActiveWindow(window);
            whenOpen<QDialog>([answer](QDialog& preview) {
                QCOMPARE(rowsOf(preview.findChild<QTableWidget*>("tableWidget_Paste")), QString("5.5=7 1=2"));
                QVERIFY(preview.findChild<QLabel*>("label_LeftOut"));
                QTest::keyClick(&preview, answer);
            });
            QTest::keyClick(at, Qt::Key_V, Qt::ControlModifier);
        }
        QCOMPARE(rows() + child<QLineEdit>("lineEdit_Volume")->text(), QString("1=2 5.5=7 10=100"));
        QVERIFY(form()->isDirty());
    }

    // Without headings the columns are taken as on the screen, which is told, and can be swapped; points that
    // rise in neither order are told too.
    void asksForTheOrderOfColumns_data()
    {
        DataTable<QString, int, QString, bool>({"text", "swaps", "after", "isTold"})
            .row("as on the screen", "10\t150\n20\t300\n", 0, "10=150 20=300", true)
            .row("the other way", "150\t10\n300\t20\n", 1, "10=150 20=300", true)
            .row("and back", "10\t150\n20\t300\n", 2, "10=150 20=300", true)
            .row("only the other way", "60000\t10\n61000\t20\n", 0, "10=60000 20=61000", true)
            .row("headings", "Level\tVolume\n150\t10\n", 0, "10=150", false);
    }
    void asksForTheOrderOfColumns()
    {
        QFETCH(QString, text);
        QFETCH(int, swaps);
        QFETCH(bool, isTold);
        dialog_->setData("t", {});
        QApplication::setActiveWindow(window);
        QGuiApplication::clipboard()->setText(text);
        std::function<void(QDialog&)> look = [&](QDialog& preview) {
            QCOMPARE(preview.findChild<QLabel*>("label_Order") != nullptr, isTold);
            QVERIFY(!preview.findChild<QLabel*>("label_PastedFalling"));
            if (swaps-- > 0) {
                whenOpen<QDialog>(look);
                QTest::keyClick(preview.findChild<QPushButton*>("pushButton_Swap"), Qt::Key_Space);
            } else {
                QTest::keyClick(&preview, Qt::Key_Return);
            }
        };
        whenOpen<QDialog>(look);
        auto* volume = child<QLineEdit>("lineEdit_Volume");
        volume->setFocus();
        QTest::keyClick(volume, Qt::Key_V, Qt::ControlModifier);
        QTEST(rows(), "after");
    }
    void tellsPastedPointsThatFall()
    {
        dialog_->setData("t", {});
        QApplication::setActiveWindow(window);
        QGuiApplication::clipboard()->setText("10\t300\n20\t150\n");
        whenOpen<QDialog>([](QDialog& preview) {
            QVERIFY(preview.findChild<QLabel*>("label_PastedFalling"));
            QTest::keyClick(&preview, Qt::Key_Escape);
        });
        auto* volume = child<QLineEdit>("lineEdit_Volume");
        volume->setFocus();
        QTest::keyClick(volume, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rows(), QString());
    }

    // What is there already is not added again; another value at a volume takes the place of the first, or
    // stands beside it; and all of it can be taken back until something else happens.
    void pastesOverPoints_data()
    {
        DataTable<QString, bool, QString>({"text", "replaces", "after"})
            .row("the same", "10\t100\n20\t200\n", true, "10=100 20=200")
            .row("the same, and no number", "10\t100\nx\t200\n", true, "10=100 20=200")
            .row("another value", "10,0\t150\n20\t200\n30\t300\n30.0\t300\n", true, "10.0=150 20=200 30=300")
            .row("beside it", "10\t150\n30\t300\n", false, "10=100 10=150 20=200 30=300");
    }
    void pastesOverPoints()
    {
        QFETCH(QString, text);
        QFETCH(bool, replaces);
        QFETCH(QString, after);
        const QString before = "10=100 20=200";
        dialog_->setData("t", {{10, 100}, {20, 200}});
        QApplication::setActiveWindow(window);
        QGuiApplication::clipboard()->setText(text);
        QStringList told;
        whenOpen<QDialog>([&](QDialog& preview) {
            for (const auto* label : preview.findChildren<QLabel*>())
                told << label->text();
            if (auto* replace = preview.findChild<QCheckBox*>("checkBox_Replace"); replace && !replaces)
                QTest::keyClick(replace, Qt::Key_Space);
            QTest::keyClick(&preview, Qt::Key_Return);
        });
        auto* volume = child<QLineEdit>("lineEdit_Volume");
        volume->setFocus();
        QTest::keyClick(volume, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rows(), after);
        const QString isThere = text.contains('x') ? "cfgt6_420 cfgt6_410 cfgt6_424" : "cfgt6_420";
        QVERIFY(told.contains(after == before ? isThere : "cfgt6_418"));
        QCOMPARE(form()->isDirty(), after != before);
        QTest::keyClick(volume, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(rows(), before);
        QVERIFY(!form()->isDirty());
        QTest::keyClick(volume, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(rows(), before);
    }

    void givesTheTableToItsOwner_data()
    {
        DataTable<QString, QString, QString, int>({"change", "leave", "answer", "told"})
            .row("accept", "", "accept", "", 1)
            .row("accept unsaved", "row", "accept", "", 1)
            .row("close", "", "close", "", 0)
            .row("close unsaved, yes", "row", "close", "wrd_001", 1)
            .row("close unsaved, no", "row", "close", "wrd_002", 0)
            .row("Escape unsaved, yes", "row", "escape", "wrd_001", 1)
            .row("Escape, edited cell", "cell", "escape", "wrd_001", 1);
    }
    void givesTheTableToItsOwner()
    {
        QFETCH(QString, change);
        QFETCH(QString, leave);
        QFETCH(QString, answer);
        QFETCH(int, told);
        const QSignalSpy spy(dialog_.get(), &VLK_Form_Fuel_View::signal_SetNewFuelData);
        dialog_->setData("t", {{1, 1}});
        if (change == "row")
            type("20", "8");
        else if (change == "cell")
            editCell(0, 0, "3", Qt::Key_Return);
        if (!answer.isEmpty())
            answerBox(answer);
        if (leave == "accept")
            press("pushButton_Accept");
        else if (leave == "close")
            dialog_->close();
        else
            QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(dialog_->isHidden());
        QCOMPARE(spy.count(), told);
        QCOMPARE(dialog_->sensorName(), QString("D3"));
        dialog_->reset();
        QVERIFY(rows().isEmpty() && !form()->isDirty());
    }

    // Where the points of a kind stand, whatever the size: dots are red, the last tick says the largest.
    void drawsPoints_data()
    {
        DataTable<int, vlk::FuelRows, QPointF>({"kind", "rows", "last"})
            .row("volts", 0, {{"0", "0"}, {"10", "1.5"}, {"20", "3"}}, {1, 1})
            .row("codes far above the pixels", 1, {{"0", "0"}, {"1000", "2000"}, {"2000", "4000"}}, {1, 1})
            .row("no volume", 1, {{"0", "10"}, {"0", "20"}}, {0, 1})
            .row("no value", 1, {{"10", "0"}}, {1, 0});
    }
    void drawsPoints()
    {
        QFETCH(int, kind);
        QFETCH(vlk::FuelRows, rows);
        QFETCH(QPointF, last);
        dialog_->setSensor(kind, "D3");
        form()->addRows(rows);
        const QImage image = graph_->grab().toImage();
        const int left = kind == 0 ? 60 : 80;
        const QPoint corner(left, graph_->height() - 50);
        const QPoint step((graph_->width() - 40 - left) / 10, (graph_->height() - 90) / 10);
        const QPoint end(corner.x() + qRound(last.x() * 10 * step.x()),
                         corner.y() - qRound(last.y() * 10 * step.y()));
        const auto isRed = [&image](const QPoint& at) {
            const QColor colour = image.pixelColor(at);
            return colour.red() > 180 && colour.green() < 90;
        };
        QVERIFY(isRed(end));
        QVERIFY(rows.size() < 3 || isRed((corner + end) / 2));
        // Around the dot a ring of 7 pixels, and above the tick of 10 litres a light line.
        const QColor beside = image.pixelColor(end - QPoint(0, 4));
        QVERIFY(beside.blue() < 230 && beside.blue() > beside.red() + 30);
        if (kind == 0) {
            const QColor line = image.pixelColor(corner + QPoint(step.x() * 5, -8));
            QVERIFY(line != QColor(Qt::white) && line.red() > 200);
        }
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    }

    void tellsOfPoints()
    {
        form()->addRows({{"0", "0"}, {"10", "50"}, {"20", "40"}, {"30", "100"}});
        QVERIFY(text("label_Falling").startsWith("cfgt6_403"));
        // In colours of the window, dark ones too.
        const auto isLight = [this] {
            return child("label_Falling")->palette().color(QPalette::WindowText).lightness() > 160;
        };
        QVERIFY(!isLight());
        QApplication::setPalette(QPalette(Qt::white, Qt::black));
        const bool wasLight = isLight();
        QApplication::setPalette(QPalette());
        QVERIFY(wasLight);
        const QPoint last(80 + (graph_->width() - 120) / 10 * 10,
                          graph_->height() - 50 - (graph_->height() - 90) / 10 * 10);
        QTest::mouseMove(graph_, last + QPoint(-4, 4));
        QTRY_COMPARE(graph_->accessibleDescription(), QString("cfgt6_040: 30.0\ncfgt6_044: 100"));
        form()->addRow("40", "200");
        QCOMPARE(graph_->accessibleDescription(), QString());
        form()->clearAll();
        QCOMPARE(text("label_Falling"), QString());
        QVERIFY(!graph_->grab().isNull());
    }

    // Down the first pair of columns, then down the second, each with its unit; all of the head is text.
    void laysOutTheSheet()
    {
        vlk::CalibrationSheet sheet{0,  "A3", "<rear>", "Truck 7", "356000", QDateTime({2026, 5, 7}, {14, 3}),
                                    {}, {}};
        for (int i = 0; i < 21; ++i)
            sheet.rows.push_back({QString::number(i), QString::number(100 + i)});
        const QString html = vlk::sheetHtml(sheet);
        for (const QString text : {"A3", "&lt;rear&gt;", "Truck 7", "356000", "07.05.2026 14:03"})
            QVERIFY2(html.contains("<b>" + text + "</b>"), qPrintable(text));
        QCOMPARE(html.count("<th>cfgt6_040</th><th>cfgt6_043</th>"), 2);
        const QString cell = "<td align=right>%1</td>";
        QVERIFY(html.contains(cell.arg(0) + cell.arg(100) + cell.arg(11) + cell.arg(111)));
        QCOMPARE(html.count("<td align=right></td>"), 2);
        QVERIFY(!html.contains("cfgt6_460"));
        sheet.rows.front().changing = QStringList{"90", "100"};
        const QString doubtful = vlk::sheetHtml(sheet);
        QVERIFY(doubtful.contains(cell.arg(0) + cell.arg("100 *")) && doubtful.contains("<p>* cfgt6_460"));
        // A point that is ringed in red on the curve is told in words.
        QVERIFY(!doubtful.contains("cfgt6_403"));
        sheet.points = {{0, 100}, {10, 90}};
        QVERIFY(vlk::sheetHtml(sheet).contains("<p>cfgt6_403"));
        // The name of a file that was not taken is the tank's too.
        QTemporaryDir folder;
        const QString path = folder.filePath("load.xml");
        writeFile(path, "<FUEL><Name>left</Name><TABLE/></FUEL>");
        vlk::XmlDocument document(path, "FUEL");
        QVERIFY(form()->loadXml(document.root()));
        form()->fillSheet(sheet);
        QCOMPARE(sheet.tank, QString("left"));
    }

private:
    VLK_Form_Fuel_Sensor* form() { return child<VLK_Form_Fuel_Sensor>(QString()); }
    // As a user does it, with Enter in the value.
    void type(const QString& volume, const QString& value)
    {
        child<QLineEdit>("lineEdit_Volume")->clear();
        QTest::keyClicks(child<QLineEdit>("lineEdit_Volume"), volume);
        auto* edit = child<QLineEdit>("lineEdit_Param");
        edit->clear();
        QTest::keyClicks(edit, value);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    void editCell(int row, int column, const QString& text, Qt::Key key)
    {
        auto* table = child<QTableWidget>("tableWidget");
        table->editItem(table->item(row, column));
        auto* editor = table->viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, key);
        // An editor that refuses its text stays.
        if (editor->isVisible())
            QTest::keyClick(editor, Qt::Key_Escape);
        QTRY_VERIFY(!table->viewport()->findChild<QLineEdit*>());
    }
    QString rows() { return rowsOf(child<QTableWidget>("tableWidget")); }

    std::unique_ptr<VLK_Form_Fuel_View> dialog_;
    VLK_FuelSensor_Graph* graph_ = nullptr;
};

QTEST_MAIN(FuelEditorTest)
#include "tst_fuel_editor.moc"
