// The windows for stored telemetry, as a host sees them: files in, widgets out.

#include "support/scripted_host.h"
#include "telemetry/files/telemetry_file.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>

using vlk::Message;

namespace {

using Elements = QVector<QPair<const char*, QByteArray>>;
enum Kind : std::int32_t { Browser, Table };

QByteArray elementLines(const Elements& elements)
{
    QByteArray lines;
    for (const auto& [name, value] : elements)
        lines += QByteArray("\t\t<") + name + '>' + value + "</" + name + ">\r\n";
    return lines;
}

QByteArray record(const Elements& elements)
{
    vlk::FieldMask mask;
    for (const auto& [name, value] : elements) {
        const auto found =
            std::ranges::find(vlk::kElements, std::string_view(name), [](const auto& e) { return e.name; });
        mask.set(found->field);
    }
    return "\t<Page type=\"176\" ver=\"30\" format=\"" + QByteArray::fromStdString(mask.text()) + "\">\r\n" +
           elementLines(elements) + "\t</Page>\r\n";
}

QByteArray packet(const Elements& elements, const QByteArray& entries = {})
{
    return "\t<Page type=\"177\" size=\"55\" stVer=\"2\" stSize=\"37\" hVer=\"1\" hSize=\"14\">\r\n" +
           elementLines(elements) + entries + "\t</Page>\r\n";
}

QByteArray document(const QByteArray& pages)
{
    return "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\r\n"
           "<TMI model=\"R-7106\" modification=\"7\" vendor=\"VELTRONIKA\" version=\"3.0\"> \r\n"
           "\t<IN1 title=\"Door\"/>\r\n\t<USERPARAM1 type=\"s\"/>\r\n" +
           pages + "</TMI>\r\n";
}

QByteArray numbered(const QVector<int>& numbers)
{
    QByteArray pages;
    for (const int number : numbers)
        pages += record({{"NumPage", QByteArray::number(number)}});
    return document(pages);
}

// Every text is its key in angle brackets.
class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override
    {
        return '<' + QString::fromLatin1(key) + '>';
    }
};

} // namespace

class BrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void positions_data();
    void positions();
    void walking();
    void packetBetweenRecords();
    void binaryForm();
    void unreadableFiles_data();
    void unreadableFiles();
    void language();
    void columns();
    void sorting_data();
    void sorting();
    void longTable();

private:
    QString write(const QByteArray& content)
    {
        QFile file(folder_.filePath(QStringLiteral("telemetry.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("the test's folder cannot be written");
        return file.fileName();
    }
    void show(const QString& path, std::int32_t kind = Browser)
    {
        host_.send(Message::ShowStoredFile, &path, &kind);
        browser_ = ScriptedHost::window("VLK_Widget_Tmi_Page");
        table_ = ScriptedHost::child<QTableView>(ScriptedHost::window("VLK_Widget_Tmi_Table"), "tableWidget");
    }
    void showContent(const QByteArray& content, std::int32_t kind = Browser) { show(write(content), kind); }

    template <class T = QLabel>
    T* child(const char* name) const
    {
        auto* found = ScriptedHost::child<T>(browser_, name);
        if (found == nullptr)
            qFatal("no %s", name);
        return found;
    }
    QString text(const char* name) const { return child(name)->text(); }
    QString number() const { return text("label_Event_NumPage_Value"); }
    QString page() const { return child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(); }
    void press(const char* name) const { child<QAbstractButton>(name)->click(); }
    void moveTo(int position) const { child<QSlider>("horizontalSlider")->setValue(position); }
    // Which of the buttons Begin, Prev, Next, End can be pressed.
    QString walkable() const
    {
        QString letters;
        for (const char* name :
             {"pushButton_Begin", "pushButton_Get_Prev", "pushButton_Get_Next", "pushButton_End"})
            letters += child<QWidget>(name)->isEnabled() ? 'x' : '-';
        return letters;
    }

    QStringList row(int row) const
    {
        QStringList cells;
        for (int column = 0; column < table_->model()->columnCount(); ++column)
            cells << table_->model()->index(row, column).data().toString();
        return cells;
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
    QWidget* browser_ = nullptr;
    QTableView* table_ = nullptr;
    int eventQuestions_ = 0;
};

void BrowserTest::initTestCase()
{
    host_.start();
    host_.onSend = [this](Message message, void* p1, void* p2) {
        if (message != Message::RequestEventText)
            return;
        ++eventQuestions_;
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
    QVERIFY(!ScriptedHost::window("VLK_Widget_Tmi_Page") && !ScriptedHost::window("VLK_Widget_Tmi_Table"));
}

void BrowserTest::positions_data()
{
    QTest::addColumn<QVector<int>>("numbers");
    QTest::addColumn<int>("last");
    QTest::addColumn<QStringList>("shown"); // at each position
    QTest::newRow("one page") << QVector<int>{7} << 0 << QStringList{"7 ----"};
    QTest::newRow("gaps") << QVector<int>{10, 11, 20} << 10
                          << QStringList{"10 --xx", "11 xxxx", "20 xx--", "20 xx--"};
    QTest::newRow("repeated") << QVector<int>{5, 5} << 1 << QStringList{"5 --xx", "5 xx--"};
    QTest::newRow("falling") << QVector<int>{9, 4} << 1 << QStringList{"9 --xx", "4 xx--"};
}

void BrowserTest::positions()
{
    QFETCH(QVector<int>, numbers);
    QFETCH(int, last);
    QFETCH(QStringList, shown);
    showContent(numbered(numbers));
    QVERIFY(browser_->isVisible());
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

void BrowserTest::walking()
{
    showContent(numbered({3, 4, 5, 6}));
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

    // The next file begins at its own beginning.
    showContent(numbered({8, 9}));
    QCOMPARE(number() + walkable(), QString("8--xx"));
    QCOMPARE(child<QSpinBox>("spinBox_Go")->value(), 0);

    host_.sent.clear();
    press("pushButton_Help");
    QCOMPARE(host_.takeSent(Message::ShowHelp).value(0).text2, QString("r-7106tmiView.html"));
    press("pushButton_Close");
    QVERIFY(browser_->isHidden());
}

void BrowserTest::packetBetweenRecords()
{
    showContent(document(record({{"NumPage", "1"}, {"Code", "3"}, {"State", "0"}, {"Power", "12345"}}) +
                         packet({{"NumPage", "2"}, {"Code", "35"}, {"Speed", "12.5"}},
                                "\t\t<Dynamic type=\"2\" size=\"16\" value=\"card\"/>\r\n") +
                         record({{"NumPage", "3"}, {"Power", "11000"}})));
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
        QVERIFY2(!child<QWidget>(command)->isVisibleTo(browser_), command);

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

void BrowserTest::binaryForm()
{
    const auto contents = vlk::readTelemetryFile(write(document(
        record({{"NumPage", "4"}, {"Power", "12000"}}) + record({{"NumPage", "5"}, {"Power", "13000"}}))));
    const QString path = folder_.filePath(QStringLiteral("telemetry.tmi"));
    QVERIFY(vlk::saveTelemetryFile(path, vlk::TelemetryForm::binary, contents->pages, {}));
    show(path);
    moveTo(1);
    QCOMPARE(number(), QString("5"));
    QVERIFY(text("label_Analog_Power_Value").startsWith("13"));
    show(path, Table);
    QCOMPARE(column(0), QStringList({"4", "5"}));

    // What stands in front of the damage is shown.
    QFile file(path);
    QVERIFY(file.resize(file.size() - 1));
    show(path);
    QCOMPARE(number() + walkable(), QString("4----"));
}

void BrowserTest::unreadableFiles_data()
{
    QTest::addColumn<QByteArray>("content"); // null for the test's folder, empty for an empty file
    QTest::addColumn<QString>("name");
    QTest::newRow("no file") << QByteArray() << "absent.xml";
    QTest::newRow("folder") << QByteArray() << "";
    QTest::newRow("no name") << QByteArray() << QString();
    QTest::newRow("empty") << QByteArray("") << "telemetry.xml";
    QTest::newRow("no pages") << document({}) << "telemetry.xml";
    QTest::newRow("other bytes") << QByteArray(100000, '\xb0') << "telemetry.xml";
}

void BrowserTest::unreadableFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, name);
    for (const Kind kind : {Browser, Table})
        showContent(numbered({1, 2}), kind);
    if (!content.isNull())
        write(content);
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
    QVERIFY(browser_->isVisible() && table_->isVisible());
}

void BrowserTest::language()
{
    const QByteArray content = document(record({{"NumPage", "1"}, {"State", "0"}}));
    for (const Kind kind : {Browser, Table})
        showContent(content, kind);
    Brackets translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    host_.send(Message::LanguageChanged);
    QCoreApplication::processEvents();
    QCOMPARE(browser_->windowTitle(), QString("<tmiw_031>"));
    QCOMPARE(child<QAbstractButton>("pushButton_Get_Next")->text(), QString("<wrd_062>"));
    QCOMPARE(text("label_Event_NumPage_Text"), QString("<tmiw_018>"));
    QVERIFY(text("label_Event_Mode_Guard_Value").startsWith('<'));
    QVERIFY(table_->model()->headerData(0, Qt::Horizontal).toString().startsWith('<'));
    QVERIFY(row(0).filter("<").size() > 1);
    QCOMPARE(table_->window()->windowTitle(), QString("telemetry.xml - <tmiw_031>"));
    QCoreApplication::removeTranslator(&translator);
    host_.send(Message::LanguageChanged);
    QCoreApplication::processEvents();
    QCOMPARE(browser_->windowTitle(), QString("tmiw_031"));
}

void BrowserTest::columns()
{
    showContent(document(record({{"NumPage", "1"}, {"Code", "3"}}) +
                         record({{"NumPage", "2"}, {"User1Byte_1", "251"}}) +
                         packet({{"NumPage", "9"}, {"Code", "0"}},
                                "\t\t<Dynamic type=\"2\" size=\"16\" value=\"card\"/>\r\n")),
                Table);
    QStringList headings;
    for (int column = 0; column < table_->model()->columnCount(); ++column)
        headings << table_->model()->headerData(column, Qt::Horizontal).toString();
    QCOMPARE(headings, QStringList({"tmizta_123", "tmizta_124", "tmizta_355 abbr_047 1", "tmizta_359"}));
    QCOMPARE(row(0), QStringList({"1", "event 3", "", ""}));
    QCOMPARE(row(1), QStringList({"2", "", "-5", ""}));
    // The host has no words for this event.
    QCOMPARE(row(2), QStringList({"9", "0", "", "tmizta_362: card"}));
    QCOMPARE(table_->window()->size(), QSize(1024, 680));
}

void BrowserTest::sorting_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("ascending"); // numbers of the records
    QTest::addColumn<QStringList>("descending");
    QTest::newRow("numbers by size") << 0 << QStringList{"2", "3", "10", "20"}
                                     << QStringList{"20", "10", "3", "2"};
    QTest::newRow("times by time") << 1 << QStringList{"10", "2", "3", "20"}
                                   << QStringList{"3", "2", "10", "20"};
    QTest::newRow("words by alphabet")
        << 2 << QStringList{"10", "20", "2", "3"} << QStringList{"2", "10", "20", "3"};
    QTest::newRow("signed, absent last")
        << 3 << QStringList{"20", "10", "2", "3"} << QStringList{"10", "20", "2", "3"};
}

// Equal values keep the order of the file in both directions.
void BrowserTest::sorting()
{
    QFETCH(int, column);
    QFETCH(QStringList, ascending);
    QFETCH(QStringList, descending);
    // 31 January, 1 and 2 February 2025.
    showContent(
        document(
            record({{"NumPage", "10"}, {"Time", "1738314000"}, {"StateOut1", "1"}, {"User1Byte_1", "5"}}) +
            record({{"NumPage", "2"}, {"Time", "1738400400"}, {"StateOut1", "0"}}) +
            record({{"NumPage", "3"}, {"Time", "1738486800"}}) +
            record({{"NumPage", "20"}, {"StateOut1", "1"}, {"User1Byte_1", "251"}})),
        Table);
    const int columnOf[] = {0, 1, 2, table_->model()->columnCount() - 1};
    QCOMPARE(this->column(0), QStringList({"10", "2", "3", "20"}));
    table_->setCurrentIndex(table_->model()->index(0, 0));
    table_->sortByColumn(columnOf[column], Qt::AscendingOrder);
    QCOMPARE(this->column(0), ascending);
    table_->sortByColumn(columnOf[column], Qt::DescendingOrder);
    QCOMPARE(this->column(0), descending);
    // The selection goes with its record, and each row tells its place in the file.
    QCOMPARE(table_->currentIndex().row(), descending.indexOf("10"));
    QCOMPARE(table_->model()->headerData(descending.indexOf("20"), Qt::Vertical).toInt(), 3);
}

// Each record has an event of its own, and the host is asked for those on show alone.
void BrowserTest::longTable()
{
    QByteArray pages;
    for (int i = 1; i <= 3000; ++i)
        pages += record({{"NumPage", QByteArray::number(i)}, {"Code", QByteArray::number(i)}});
    eventQuestions_ = 0;
    showContent(document(pages), Table);
    QCOMPARE(table_->model()->rowCount(), 3000);
    table_->scrollToBottom();
    table_->grab();
    QVERIFY2(eventQuestions_ > 0 && eventQuestions_ < 200, qPrintable(QString::number(eventQuestions_)));
    QCOMPARE(row(2999), QStringList({"3000", "event 3000"}));
}

QTEST_MAIN(BrowserTest)
#include "tst_browser.moc"
