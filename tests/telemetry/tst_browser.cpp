// The windows for stored telemetry, as a host sees them: files in, widgets out.

#include "sample_pages.h"
#include "support/allocated_bytes.h"
#include "support/brackets.h"
#include "support/data_table.h"
#include "support/files.h"
#include "support/scripted_host.h"
#include "support/window_parts.h"
#include "telemetry/files/telemetry_file.h"

#include <QtTest>
#include <QtWidgets>

#include <numeric>

using namespace vlk;

namespace {

enum Kind : std::int32_t { Browser, Table };

TelemetryPages numbered(const QVector<int>& numbers, quint64 code = 0)
{
    TelemetryPages pages;
    for (const int number : numbers)
        pages.push_back(recordOf({{"NumPage", static_cast<quint64>(number)}, {"Code", code}}));
    return pages;
}

} // namespace

class BrowserTest : public QObject, private WindowParts
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c());
        host_.start();
        host_.onSend = [](Message message, void* p1, void* p2) {
            if (message != Message::RequestEventText)
                return;
            const auto code = vlk::asValue(p1);
            if (code != 0)
                *static_cast<QString*>(p2) = QStringLiteral("event %1").arg(code);
        };
        const std::int32_t unknown = 2;
        const std::int32_t browser = Browser;
        const QString path = write(numbered({1}));
        host_.send(Message::ShowStoredFile, &path, &unknown);
        host_.send(Message::ShowStoredFile, &path, nullptr);
        host_.send(Message::ShowStoredFile, nullptr, &browser);
        QVERIFY(!ScriptedHost::window("VLK_Widget_Tmi_Page") &&
                !ScriptedHost::window("VLK_Widget_Tmi_Table"));
    }

    void tableByKey()
    {
        showPages(numbered({4, 5, 6}));
        QApplication::setActiveWindow(window);
        QTest::keyClick(window, Qt::Key_L, Qt::ControlModifier);
        QWidget* const table = ScriptedHost::window("VLK_Widget_Tmi_Table");
        QVERIFY(table && table->isVisible());
        QTRY_COMPARE(ScriptedHost::child<QTableView>(table, "tableWidget")->model()->rowCount(), 3);
        table->close();
    }

    void positions_data()
    {
        DataTable<QVector<int>, int, QStringList>({"numbers", "last", "shown"})
            .row("one page", QVector<int>{7}, 0, {"7 ----"})
            .row("gaps", QVector<int>{10, 11, 20}, 10, {"10 --xx", "11 xxxx", "20 xx--", "20 xx--"})
            .row("repeated", QVector<int>{5, 5}, 1, {"5 --xx", "5 xx--"})
            .row("falling", QVector<int>{9, 4}, 1, {"9 --xx", "4 xx--"});
    }
    void positions()
    {
        QFETCH(QVector<int>, numbers);
        QFETCH(int, last);
        QFETCH(QStringList, shown);
        showPages(numbered(numbers));
        QVERIFY(window->isVisible());
        QCOMPARE(page(), QString("page_Zeta3"));
        QCOMPARE(child<QAbstractButton>("pushButton_Begin")->text(), QString("0"));
        QCOMPARE(child<QAbstractButton>("pushButton_End")->text(), QString::number(last));
        QCOMPARE(child<QSpinBox>("spinBox_Go")->maximum(), last);
        QCOMPARE(child<QSlider>("horizontalSlider")->maximum(), last);
        for (int position = 0; position < shown.size(); ++position) {
            moveTo(position);
            QCOMPARE(child<QSpinBox>("spinBox_Go")->value(), position);
            QCOMPARE(number() + ' ' + walkable(), shown[position]);
        }
    }

    void walking()
    {
        showPages(numbered({3, 4, 5, 6}));
        const std::pair<const char*, const char*> steps[] = {
            {"pushButton_Get_Next", "4"}, {"pushButton_End", "6"},   {"pushButton_Get_Next", "6"},
            {"pushButton_Get_Prev", "5"}, {"pushButton_Begin", "3"}, {"pushButton_Get_Prev", "3"}};
        for (const auto& [button, expected] : steps) {
            press(button);
            QCOMPARE(number(), QString(expected));
        }
        child<QSpinBox>("spinBox_Go")->setValue(2);
        QCOMPARE(child<QSlider>("horizontalSlider")->value(), 2);
        QCOMPARE(number(), QString("5"));
        QVERIFY(child<QWidget>("pushButton_Go")->isHidden());
        // A number beyond the last position is not cut to its first digits.
        child<QSpinBox>("spinBox_Go")->selectAll();
        QTest::keyClicks(child<QSpinBox>("spinBox_Go"), "15\t");
        QCOMPARE(number(), QString("6"));

        // The next file begins at its own beginning.
        showPages(numbered({8, 9}));
        QCOMPARE(number() + walkable(), QString("8--xx"));
        QCOMPARE(text("label_File"), QString("telemetry.xml"));
        QVERIFY(QTest::qWaitForWindowActive(window));
        for (const auto& [key, record] : {std::pair(Qt::Key_PageUp, "8"),
                                          {Qt::Key_PageDown, "9"},
                                          {Qt::Key_PageDown, "9"},
                                          {Qt::Key_PageUp, "8"}}) {
            QTest::keyClick(child<QSlider>("horizontalSlider"), key);
            QCOMPARE(number(), QString(record));
        }
        QCOMPARE(child<QSpinBox>("spinBox_Go")->value(), 0);

        host_.sent.clear();
        press("pushButton_Help");
        QCOMPARE(host_.takeSent(Message::ShowHelp).value(0).text2, QString("r-7106tmiView.html"));
        press("pushButton_Close");
        QVERIFY(window->isHidden());
    }

    // What was on show stays, a line says so, and the way back leads to the last record.
    void positionWithoutRecord()
    {
        showPages(numbered({10, 11}));
        QVERIFY(child("label_NoRecord")->isHidden());
        showPages(numbered({10, 11, 20}));
        const auto shown = [this] { return number() + ' ' + walkable() + ' ' + text("label_NoRecord"); };
        QCOMPARE(shown(), QString("10 --xx "));
        moveTo(7);
        host_.send(Message::LanguageChanged);
        QCOMPARE(shown(), QString("10 xx-- tmiw_183"));
        QVERIFY(child("label_NoRecord")->isVisible());
        press("pushButton_Get_Prev");
        QCOMPARE(shown(), QString("20 xx-- "));
        QCOMPARE(child<QSpinBox>("spinBox_Go")->value(), 2);
        moveTo(10);
        press("pushButton_Begin");
        QCOMPARE(shown(), QString("10 --xx "));
        press("pushButton_End");
        QCOMPARE(child<QSpinBox>("spinBox_Go")->value(), 10);
        QCOMPARE(shown(), QString("10 xx-- tmiw_183"));
        QCOMPARE(child<QWidget>("pushButton_Begin")->toolTip(), QString("tmiw_184"));
        QCOMPARE(child<QWidget>("pushButton_End")->accessibleName(), QString("tmiw_185"));
    }

    // Records stay packed; beside the table stand the columns of curves and track. Two large files are never
    // in memory at once: when the second one has been read, here to no avail, the first is gone.
    void memoryOfTheFirstFile()
    {
        QVector<int> numbers(30'000);
        std::iota(numbers.begin(), numbers.end(), 1);
        const QString empty = writeFile(folder_.filePath("empty.xml"), "<TMI>");
        const QString large = write(::numbered(numbers));
        for (const Kind kind : {Browser, Table}) {
            show(empty, kind);
            const std::size_t before = allocatedBytes();
            show(large, kind);
            const std::size_t whole = allocatedBytes() - before;
            static std::size_t atTheEnd;
            const QtMessageHandler usual = qInstallMessageHandler(
                [](QtMsgType, const QMessageLogContext&, const QString&) { atTheEnd = allocatedBytes(); });
            show(empty, kind);
            qInstallMessageHandler(usual);
            QVERIFY2(whole > 1'000'000 && whole < std::size_t{30'000} * (kind == Table ? 350 : 150) &&
                         atTheEnd < before + whole / 2,
                     qPrintable(QString::number(whole)));
        }
    }

    void packetBetweenRecords()
    {
        showPages(pagesOf(recordOf({{"NumPage", 1}, {"Code", 3}, {"State", 0}, {"Power", 12345}}),
                          packetOf(navigationOf(2), kSecondHead.mid(2), cardEntry("card")),
                          recordOf({{"NumPage", 3}, {"Power", 11000}})));
        const auto modesShown = [this] {
            return !child("label_Event_State_Text")->isHidden() &&
                   !child("label_Event_Mode_Alarm_Value")->isHidden();
        };
        QVERIFY(modesShown());
        QCOMPARE(text("label_Event_Code_Value"), QString("event 3"));
        QVERIFY(text("label_Event_Mode_Guard_Value") != QString());
        QCOMPARE(text("label_In_Caption_1"), QString("Door"));
        QVERIFY(text("label_Analog_Power_Value").startsWith("12"));
        for (const char* command : {"pushButton_Run", "pushButton_Out_On", "pushButton_Out_Off"})
            QVERIFY2(!child<QWidget>(command)->isVisibleTo(window), command);

        moveTo(1);
        QCOMPARE(page(), QString("page_ZetaExt"));
        QVERIFY(!modesShown());
        QCOMPARE(number() + ' ' + text("label_Event_Code_Value"), QString("2 event 35"));
        const auto* tree = child<QTreeWidget>("treeWidget");
        QCOMPARE(tree->topLevelItemCount(), 1);
        QCOMPARE(tree->topLevelItem(0)->text(1), QString("card"));

        moveTo(2);
        QCOMPARE(page(), QString("page_Zeta3"));
        QVERIFY(modesShown());
        QVERIFY(text("label_Analog_Power_Value").startsWith("11"));
        QCOMPARE(text("label_Event_Code_Value"), QString());
    }

    void unreadableFiles_data()
    {
        // null for the test's folder, empty for an empty file
        DataTable<QByteArray, QString>({"content", "name"})
            .row("no file", {}, "absent.xml")
            .row("folder", {}, "")
            .row("no name", {}, {})
            .row("empty", "", "telemetry.xml")
            .row("no pages", readFile(write({})), "telemetry.xml")
            .row("other bytes", QByteArray(100000, '\xb0'), "telemetry.xml");
    }
    void unreadableFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, name);
        for (const Kind kind : {Browser, Table})
            showPages(numbered({1, 2}), kind);
        if (!content.isNull())
            writeFile(folder_.filePath("telemetry.xml"), content);
        const QString path = name.isNull() ? QString() : folder_.filePath(name);
        for (const Kind kind : {Browser, Table})
            show(path, kind);

        // Nothing of the previous file is left to be walked to.
        for (const int position : {0, 1}) {
            moveTo(position);
            QCOMPARE(page(), QString("page_Empty"));
            QVERIFY(child<QWidget>("frame_TMI_Title")->isHidden());
            QCOMPARE(number(), QString());
        }
        QVERIFY(!child("label_Event_State_Text")->isHidden());
        QCOMPARE(table_->model()->rowCount(), 0);
        QCOMPARE(table_->model()->columnCount(), 0);
        QVERIFY(window->isVisible() && table_->isVisible());
    }

    void damagedFiles_data()
    {
        const TelemetryPages pages = numbered({11111, 11112, 11113}, 3);
        const QByteArray xml = readFile(write(pages));
        QByteArray binary = readFile(write(pages, TelemetryForm::Binary));
        const QByteArray wholeBinary = binary;
        binary[128 + 42 + 2] = 9; // the second record's type
        QByteArray joined = readFile(write(numbered({11111, 11112, 11113, 11114}, 3), TelemetryForm::Binary));
        joined.remove(128 + 42 + 40, 42); // one of two halves
        const QStringList all{"11111", "11112", "11113"};
        DataTable<QByteArray, QStringList, QString>({"content", "numbers", "bar"})
            .row("cut in a number", xml.left(xml.indexOf("<NumPage>11112") + 11), {"11111", "0"},
                 "tmiw_189 tmiw_193")
            .row("no number", QByteArray(xml).replace(">11112<", ">1111x<"), {"11111", "0", "11113"},
                 "tmiw_188 tmiw_192")
            .row("binary", wholeBinary, all, "")
            .row("a type changed", binary, {"11111", "11113"}, "tmiw_189 tmiw_192 tmiw_194")
            .row("two halves", joined, {"11111", "11112", "11114"}, "tmiw_189 tmiw_194 rec_682");
    }
    // Whole records before and behind the damage are shown, and what can be walked to is what there is. A bar
    // in both windows tells of it.
    void damagedFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, numbers);
        QFETCH(QString, bar);
        const QString path = writeFile(folder_.filePath("telemetry.xml"), content);
        for (const Kind kind : {Browser, Table})
            show(path, kind);
        QTEST(text("label_Damage"), "bar");
        QTEST(table_->window()->findChild<QLabel*>("label_Damage")->text(), "bar");
        QCOMPARE(column(0), numbers);
        QStringList seen;
        for (int position = 0; position <= child<QSlider>("horizontalSlider")->maximum(); ++position) {
            moveTo(position);
            if (seen.isEmpty() || seen.last() != number())
                seen << number();
        }
        QCOMPARE(seen, numbers);
        press("pushButton_Begin");
        QCOMPARE(number() + ' ' + text("label_Event_Code_Value"), numbers.first() + " event 3");
        table_->sortByColumn(0, Qt::DescendingOrder);
        QCOMPARE(table_->model()->rowCount(), numbers.size());
        if (!bar.isEmpty()) {
            press("label_Damage_Action1");
            QCOMPARE(number(), numbers[1]);
            table_->window()->findChild<QAbstractButton*>("label_Damage_Action1")->click();
            QCOMPARE(column(0).value(table_->currentIndex().row()), numbers[1]);
        }
        showPages(numbered({8, 9}));
        QCOMPARE(number() + walkable(), QString("8--xx"));
        QVERIFY(text("label_Damage").isEmpty());
    }

    // A period that was saved in part has its last record, and not those in front of it. Other gaps are those
    // of records that somebody chose.
    void tellsOfAPart_data()
    {
        DataTable<QList<int>, QString>({"numbers", "told"})
            .row("whole", {5, 6, 7}, "")
            .row("in part", {5, 6, 9}, "rec_472")
            .row("the ends alone", {5, 900}, "rec_472")
            .row("one", {5}, "")
            .row("chosen", {5, 8, 9, 12}, "")
            .row("gap in the middle", {5, 6, 9, 10}, "")
            .row("backwards", {9, 6, 5}, "");
    }
    void tellsOfAPart()
    {
        QFETCH(QList<int>, numbers);
        for (const Kind kind : {Browser, Table})
            showPages(numbered({numbers.begin(), numbers.end()}), kind);
        QTEST(text("label_Damage"), "told");
        QTEST(table_->window()->findChild<QLabel*>("label_Damage")->text(), "told");
        if (text("label_Damage").isEmpty())
            return;
        press("label_Damage_Action1");
        QCOMPARE(number(), QString::number(numbers.at(numbers.size() - 2)));
        showPages(numbered({8, 9}));
        QCOMPARE(text("label_Damage"), QString());
    }

    void language()
    {
        showPages(pagesOf(recordOf({{"NumPage", 1}, {"State", 0}})));
        auto brackets = std::make_unique<Brackets>();
        host_.send(Message::LanguageChanged);
        QCOMPARE(window->windowTitle(), QString("<tmiw_031>"));
        QVERIFY(text("label_Navi_Lat_Text").startsWith('<'));
        QCOMPARE(child<QAbstractButton>("pushButton_Get_Next")->text(), QString("<wrd_062>"));
        QCOMPARE(text("label_Event_NumPage_Text"), QString("<tmiw_018>"));
        QVERIFY(text("label_Event_Mode_Guard_Value").startsWith('<'));
        brackets.reset();
        host_.send(Message::LanguageChanged);
        QCOMPARE(window->windowTitle(), QString("tmiw_031"));
    }

private:
    QString write(const TelemetryPages& pages, TelemetryForm form = TelemetryForm::Xml)
    {
        TelemetryOrigin origin;
        origin.titles.inputs[0] = "Door";
        origin.titles.userTypes[0] = "s";
        QString path = folder_.filePath("telemetry.xml");
        if (!saveTelemetryFile(path, form, storeOf(pages), origin))
            qFatal("the test's folder cannot be written");
        return path;
    }
    void show(const QString& path, std::int32_t kind = Browser)
    {
        host_.send(Message::ShowStoredFile, &path, &kind);
        window = ScriptedHost::window("VLK_Widget_Tmi_Page");
        table_ = ScriptedHost::child<QTableView>(ScriptedHost::window("VLK_Widget_Tmi_Table"), "tableWidget");
    }
    void showPages(const TelemetryPages& pages, std::int32_t kind = Browser) { show(write(pages), kind); }

    QString number() const { return text("label_Event_NumPage_Value"); }
    QString page() const { return child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(); }
    void moveTo(int position) const { child<QSlider>("horizontalSlider")->setValue(position); }
    // Which of the buttons Begin, Prev, Next, End can be pressed.
    QString walkable() const
    {
        QString letters;
        for (const char* name :
             {"pushButton_Begin", "pushButton_Get_Prev", "pushButton_Get_Next", "pushButton_End"})
            letters += isOn(name) ? 'x' : '-';
        return letters;
    }

    QStringList column(int column) const
    {
        QStringList cells;
        for (int row = 0; row < table_->model()->rowCount(); ++row)
            cells << table_->model()->index(row, column).data().toString();
        return cells;
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
    QTableView* table_ = nullptr;
};

QTEST_MAIN(BrowserTest)
#include "tst_browser.moc"
