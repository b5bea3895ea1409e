// The telemetry view, as a host sees it: messages in, messages and widgets out.

#include "dataset/catalogue/field_mask.h"
#include "support/scripted_host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTreeWidget>
#include <QtTest>

using vlk::Message;

namespace {

using Messages = QVector<Message>;
using Values = QVector<QPair<const char*, quint32>>;

// A record of protocol 3.0 with these elements.
QByteArray record(const Values& values, char ver = 30)
{
    vlk::FieldMask mask;
    QByteArray block(vlk::blockBytes(vlk::kFieldCount), '\0');
    for (const auto& [name, value] : values) {
        for (const vlk::Element& element : vlk::kElements) {
            if (element.name != name)
                continue;
            mask.set(element.field);
            for (int i = 0; i < element.width; ++i)
                block[element.offset + i] = static_cast<char>(value >> 8 * i);
        }
    }
    QByteArray bytes = QByteArray("\xb0") + ver;
    bytes.append(reinterpret_cast<const char*>(mask.bytes().data()), vlk::FieldMask::kBytes);
    int offset = 0;
    for (int field = 0; field < vlk::kFieldCount; ++field) {
        if (mask.test(field))
            bytes += block.mid(offset, vlk::kFields[field].width);
        offset += vlk::kFields[field].width;
    }
    return bytes;
}

QByteArray numbered(quint32 number, char ver = 30)
{
    return record({{"NumPage", number}}, ver);
}

// Number 7, code 35, 1700000000 s, no fix, then these entries.
QByteArray extraPacket(const QByteArray& entries)
{
    const QByteArray head = QByteArray::fromHex("0225"
                                                "07000000"
                                                "2300"
                                                "00f15365"
                                                "2d"
                                                "01f15365"
                                                "feffffff"
                                                "03000000"
                                                "2a070000"
                                                "00002041"
                                                "0e01"
                                                "00002040");
    const QByteArray second = QByteArray::fromHex("010e"
                                                  "1d"
                                                  "03"
                                                  "64000000"
                                                  "c8000000"
                                                  "100e0000");
    const int size = head.size() + second.size() + entries.size();
    return QByteArray("\xb1") + static_cast<char>(size) + static_cast<char>(size >> 8) + head + second +
           entries;
}

QByteArray behind(int header, const QByteArray& bytes)
{
    return QByteArray(header, '\x55') + bytes;
}

QByteArray padded(const QByteArray& record, int size)
{
    return behind(3, record).leftJustified(size, '\0');
}

} // namespace

Q_DECLARE_METATYPE(vlk::Message)

class ViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void opening();
    void records_data();
    void records();
    void walking();
    void automaticRequests_data();
    void automaticRequests();
    void clearing();
    void zoneMovesEditors();
    void guardFollowsTheRecord_data();
    void guardFollowsTheRecord();
    void extraEntries();
    void keyAnswer();
    void productionLimits_data();
    void productionLimits();
    void keysAndTags();
    void detachedInTheMiddle();
    void badParameters();
    void tachographRequests();
    void tachographAnswers();

private:
    template <class T = QLabel>
    T* child(const char* name) const
    {
        auto* found = host_.child<T>(view_, name);
        Q_ASSERT(found);
        return found;
    }
    QString text(const char* name) const { return child(name)->text(); }
    bool isOn(const char* name) const { return child<QWidget>(name)->isEnabled(); }
    QString page() const { return child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(); }
    void press(const char* name) const { child<QAbstractButton>(name)->click(); }
    void setMode(std::int32_t mode) { host_.send(Message::SetHostMode, &mode); }
    void send(Message message, const QByteArray& bytes) { host_.send(message, &bytes); }
    Messages takeSent()
    {
        Messages numbers;
        for (const auto& sent : std::exchange(host_.sent, {})) {
            if (sent.number != Message::RequestEventText)
                numbers << sent.number;
        }
        return numbers;
    }

    ScriptedHost host_;
    QTemporaryDir folder_;
    QString configuration_;
    QWidget* view_ = nullptr;
    quint32 number_ = 0;
    QDateTime time_;
    QByteArray request_;
};

void ViewTest::initTestCase()
{
    host_.start();
    host_.onSend = [this](Message message, void* p1, void* p2) {
        if (message == Message::RequestEventText)
            *static_cast<QString*>(p2) = QStringLiteral("event %1").arg(vlk::asValue(p1));
        if (message == Message::RequestRecordByNumber)
            number_ = *static_cast<quint32*>(p1);
        if (message == Message::RequestRecordByTime)
            time_ = *static_cast<QDateTime*>(p1);
        if (message == Message::TachographFileRequest)
            request_ = QByteArray(static_cast<char*>(p1), sizeof(vlk::szQueryTaho));
    };
    configuration_ = folder_.filePath("configuration.xml");
    QFile file(configuration_);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<?xml version=\"1.0\" encoding=\"windows-1251\"?><DEVICE><SYSTEM><BALANCE "
               "USSD=\"*100#\"/></SYSTEM></DEVICE>");
    file.close();

    // Answers before there is a window find none, and make none.
    badParameters();
    send(Message::CurrentRecord, padded(numbered(1), 101));
    QVERIFY(!ScriptedHost::window("VLK_Widget_Tmi_View"));
    std::uint8_t answer = 7;
    host_.send(Message::PrepareTelemetry, &answer);
    QCOMPARE(int(answer), 0);
    view_ = ScriptedHost::window("VLK_Widget_Tmi_View");
    QVERIFY(view_ && view_->isHidden());
}

void ViewTest::init()
{
    setMode(0);
    host_.attach();
    host_.send(Message::OpenTelemetry, &configuration_);
    QVERIFY(view_->isVisible());
    host_.sent.clear();
}

void ViewTest::opening()
{
    send(Message::RecordByNumber, behind(3, numbered(9)));
    host_.send(Message::CloseWindows);
    QVERIFY(view_->isHidden());
    host_.send(Message::OpenTelemetry, &configuration_);
    QCOMPARE(takeSent(), Messages{Message::RequestCurrentRecord});
    QCOMPARE(view_->windowTitle(), QString("tmiw_001 / R-7106 / 123456789ABCDEF / text two / text one"));
    QCOMPARE(page(), QString("page_Empty"));
    QVERIFY(child<QWidget>("frame_TMI_Title")->isHidden());
    QVERIFY(child<QWidget>("groupBox_Btn_Guard")->isHidden());
    QCOMPARE(text("label_Event_NumPage_Value"), QString());
    QVERIFY(!isOn("pushButton_Get_Prev") && !isOn("pushButton_Get_Next"));
    const auto time = [this](const char* name) { return child<QDateTimeEdit>(name)->dateTime(); };
    QCOMPARE(time("dateTimeEdit_First").secsTo(time("dateTimeEdit_Last")), 3600LL);
    char ussd[vlk::balanceUssdSize];
    host_.send(Message::GetBalanceUssd, ussd);
    QCOMPARE(QByteArray(ussd), QByteArray("*100#"));
}

void ViewTest::records_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("number");
    QTest::addColumn<bool>("modes");
    const auto row = [](const char* name, Message message, const QByteArray& answer, const char* page,
                        const char* number, bool modes = true) {
        QTest::newRow(name) << int(message) << answer << page << number << modes;
    };
    row("100 bytes", Message::CurrentRecord, padded(numbered(5), 100), "page_Empty", "");
    row("101 bytes", Message::CurrentRecord, padded(numbered(5), 101), "page_Zeta3", "5");
    row("cleared, 100 bytes", Message::ClearedRecord, padded(numbered(5), 100), "page_Empty", "");
    row("cleared, 101 bytes", Message::ClearedRecord, padded(numbered(5), 101), "page_Zeta3", "5");
    row("by number", Message::RecordByNumber, behind(3, numbered(6)), "page_Zeta3", "6");
    row("by time", Message::RecordByTime, behind(13, numbered(7)), "page_Zeta3", "7");
    row("of a period", Message::RecordOfPeriod, behind(13, numbered(8)), "page_Zeta3", "8");
    row("protocol 1.0", Message::RecordByNumber, behind(3, numbered(9, 10)), "page_Zeta1", "0");
    row("protocol 2.0", Message::RecordByNumber, behind(3, numbered(9, 20)), "page_Zeta2", "9");
    row("protocol 4.0", Message::RecordByNumber, behind(3, numbered(9, 40)), "page_Empty", "");
    row("no number", Message::RecordByNumber, behind(3, record({{"Power", 1}})), "page_Zeta3", "");
    row("extra packet", Message::RecordByNumber, behind(3, extraPacket({})), "page_ZetaExt", "7", false);
    row("key answer", Message::ExtraPacket, behind(2, extraPacket({})), "page_ZetaExt", "7", false);
    row("other type", Message::RecordByNumber, behind(3, "\xb2\x1e"), "page_Empty", "");
    row("type alone", Message::RecordByNumber, behind(3, "\xb0"), "page_Empty", "");
    row("header alone", Message::RecordByTime, behind(13, {}), "page_Empty", "");
    row("cut header", Message::RecordByTime, behind(2, {}), "page_Empty", "");
}

void ViewTest::records()
{
    QFETCH(int, message);
    QFETCH(QByteArray, answer);
    QFETCH(bool, modes);
    send(static_cast<Message>(message), answer);
    QTEST(page(), "page");
    QTEST(text("label_Event_NumPage_Value"), "number");
    QCOMPARE(child<QWidget>("frame_TMI_Title")->isHidden(), page() == "page_Empty");
    for (const char* name : {"label_Event_State_Text", "label_Event_Mode_Guard_Value",
                             "label_Event_Mode_Test_Value", "label_Event_Mode_Alarm_Value"})
        QCOMPARE(child(name)->isHidden(), !modes);
    QVERIFY(view_->isVisible());
}

void ViewTest::walking()
{
    struct Step
    {
        quint32 number;
        bool previous;
        bool next;
    };
    for (const Step& step : {Step{5, true, false},
                             {4, true, true},
                             {5, true, false},
                             {6, true, false},
                             {0, false, true},
                             {6, true, false}}) {
        send(Message::RecordByNumber, behind(3, numbered(step.number)));
        QCOMPARE(isOn("pushButton_Get_Prev"), step.previous);
        QCOMPARE(isOn("pushButton_Get_Next"), step.next);
    }
    send(Message::RecordByNumber, behind(3, numbered(4)));
    press("pushButton_Get_Prev");
    QCOMPARE(number_, 3U);
    press("pushButton_Get_Next");
    QCOMPARE(number_, 5U);
    // A slow tracker is not asked twice for what a held button waits for.
    send(Message::RecordByNumber, behind(3, numbered(4)));
    host_.sent.clear();
    QTest::mousePress(child<QPushButton>("pushButton_Get_Prev"), Qt::LeftButton);
    QTest::qWait(600);
    QCOMPARE(takeSent(), Messages{Message::RequestRecordByNumber});
    send(Message::RecordByNumber, behind(3, numbered(3)));
    QTRY_COMPARE(number_, 2U);
    QTest::mouseRelease(child<QPushButton>("pushButton_Get_Prev"), Qt::LeftButton);
}

void ViewTest::automaticRequests_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Messages>("expected");
    constexpr Message ask = Message::RequestCurrentRecord;
    const Messages production = {ask, ask, ask, ask, ask, Message::WaitStepEnd, ask};
    QTest::newRow("observation") << 0 << Messages(7, ask);
    QTest::newRow("production 1") << 1 << production;
    QTest::newRow("production 2") << 2 << production;
}

void ViewTest::automaticRequests()
{
    QFETCH(int, mode);
    setMode(mode);
    host_.send(Message::CloseWindows);
    host_.send(Message::OpenTelemetry, &configuration_);
    auto* box = child<QCheckBox>("checkBox_Get_Auto_TMI");
    QCOMPARE(box->isChecked(), mode != 0);
    if (mode == 0) {
        host_.sent.clear();
        box->setChecked(true);
    }
    for (const char* name : {"groupBox_Btn_Get", "groupBox_Btn_Save", "pushButton_Taho", "pushButton_RFID"})
        QVERIFY2(!isOn(name), name);
    for (int i = 0; i < 6; ++i)
        QMetaObject::invokeMethod(view_, "slot_timeout_m_Timer_Auto_TMI");
    QTEST(takeSent(), "expected");
    QTRY_COMPARE_WITH_TIMEOUT(host_.sent.size(), 1, 3000);
    QCOMPARE(takeSent(), Messages{Message::RequestCurrentRecord});
    box->setChecked(false);
    QVERIFY(isOn("groupBox_Btn_Get") && isOn("pushButton_RFID"));
    QMetaObject::invokeMethod(view_, "slot_timeout_m_Timer_Auto_TMI");
    QTest::qWait(1100);
    QCOMPARE(takeSent(), Messages{});
}

void ViewTest::clearing()
{
    const QByteArray answer = padded(numbered(1), 101);
    auto* first = child<QCheckBox>("checkBox_Server1");
    auto* third = child<QCheckBox>("checkBox_Server3");
    press("pushButton_Clear");
    QCOMPARE(takeSent(), Messages{});
    first->setChecked(true);
    third->setChecked(true);
    // Nobody pressed the button, so an answer moves nothing.
    send(Message::ClearedRecord, answer);
    QCOMPARE(takeSent(), Messages{});
    press("pushButton_Clear");
    QCOMPARE(host_.sent.last().value, 1);
    send(Message::ClearedRecord, answer.left(100));
    QVERIFY(first->isChecked());
    send(Message::ClearedRecord, answer);
    QVERIFY(!first->isChecked() && third->isChecked());
    QCOMPARE(host_.sent.last().number, Message::ClearServerData);
    QCOMPARE(host_.sent.last().value, 3);
    send(Message::ClearedRecord, answer);
    QVERIFY(!third->isChecked());
    host_.sent.clear();
    send(Message::ClearedRecord, answer);
    QCOMPARE(takeSent(), Messages{});
}

void ViewTest::zoneMovesEditors()
{
    auto* zone = child<QSpinBox>("spinBox_TimeOffset");
    zone->setValue(3);
    const char* const names[] = {"dateTimeEdit_Show", "dateTimeEdit_First", "dateTimeEdit_Last"};
    QVector<QDateTime> before;
    for (const char* name : names)
        before << child<QDateTimeEdit>(name)->dateTime();
    press("pushButton_Show");
    const QDateTime asked = time_;
    QVERIFY(qAbs(asked.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    send(Message::RecordByNumber, behind(3, record({{"Time", 1738411200}}))); // noon UTC
    QCOMPARE(text("label_Event_DateTime_Value"), QString("15:00:00 01.02.2025 (UTC +3)"));

    zone->setValue(5);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(before[i].secsTo(child<QDateTimeEdit>(names[i])->dateTime()), 7200LL);
    press("pushButton_Show");
    QCOMPARE(time_, asked);
    QCOMPARE(text("label_Event_DateTime_Value"), QString("17:00:00 01.02.2025 (UTC +5)"));
    // A form that was not on show has the zone with its next record.
    send(Message::RecordByNumber, behind(3, extraPacket({})));
    QVERIFY(text("label_Event_DateTime_Value").endsWith("(UTC +5)"));
}

void ViewTest::guardFollowsTheRecord_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QStringList>("modes");
    QTest::addColumn<bool>("guard");
    QTest::addColumn<bool>("noGuard");
    const auto row = [](const char* name, const Values& values, const QStringList& modes, bool guard,
                        bool noGuard) {
        QTest::newRow(name) << padded(record(values), 101) << modes << guard << noGuard;
    };
    row("observation, test", {{"State", 1}}, {"tmizta_005", "tmizta_001", ""}, true, false);
    row("guard, alarm", {{"State", 0x0c}}, {"tmizta_006", "", "tmizta_004"}, false, true);
    row("mode 2", {{"State", 0x10}}, {"tmizta_007", "", ""}, false, false);
    row("mode 3", {{"State", 0xf8}}, {"tmizta_008", "", ""}, false, false);
    row("absent", {{"Code", 12}}, {"", "", ""}, false, false);
}

void ViewTest::guardFollowsTheRecord()
{
    QFETCH(QByteArray, answer);
    send(Message::RecordByNumber, answer);
    QTEST((QStringList{text("label_Event_Mode_Guard_Value"), text("label_Event_Mode_Test_Value"),
                       text("label_Event_Mode_Alarm_Value")}),
          "modes");
    QCOMPARE(text("label_Event_Code_Value"),
             QString(QByteArray("absent") == QTest::currentDataTag() ? "event 12" : ""));
    // The box itself stays hidden in this model.
    QVERIFY(child<QWidget>("groupBox_Btn_Guard")->isHidden());
    QTEST(isOn("pushButton_Set_Guard"), "guard");
    QTEST(isOn("pushButton_Set_NoGuard"), "noGuard");
}

void ViewTest::extraEntries()
{
    const QByteArray entries = QByteArray::fromHex("0108"
                                                   "7b00000000000000"
                                                   "0203") +
                               "sixteen letters!" +
                               QByteArray::fromHex("0903"
                                                   "0aff01"
                                                   "03ff"
                                                   "ffffffffffffffff"
                                                   "0905"
                                                   "0102");
    send(Message::RecordByNumber, behind(3, extraPacket(entries)));
    auto* tree = child<QTreeWidget>("treeWidget");
    QStringList rows;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        rows << tree->topLevelItem(i)->text(0) + '|' + tree->topLevelItem(i)->text(1);
    QCOMPARE(rows, (QStringList{"TM key|123 (0x00000000007B)", "Card|sixteen letters!",
                                "Unknow packet|0a ff 01  (size = 3 byte)",
                                "RFID|18446744073709551615 (0xFFFFFFFFFFFFFFFF)",
                                "Unknow packet|01 02  (size = 5 byte)"}));
    // The tabs have labels of the same names.
    QWidget* const form = ScriptedHost::window("VLK_Form_TMI_ZetaExt");
    QCOMPARE(host_.child<QLabel>(form, "label_Navi_State_Value")->text(), QString("tmizta_028"));
    const std::pair<const char*, const char*> values[] = {
        {"label_Navi_Count_Value", "11"},   {"label_Navi_Lat_Value", "0 -0.0002'"},
        {"label_Navi_Alt_Value", "183"},    {"label_Navi_Speed_Value", "10.00"},
        {"label_Navi_Course_Value", "270"}, {"label_Navi_Way_Value", "2.50"}};
    for (const auto& [name, value] : values)
        QCOMPARE(host_.child<QLabel>(form, name)->text(), QString(value));
    QCOMPARE(text("label_Event_Code_Value"), QString("event 35"));
    QCOMPARE(text("label_Event_Mode_Alarm_Value"), QString("tmizta_004"));
}

void ViewTest::keyAnswer()
{
    press("pushButton_Get_Current_Touch");
    QCOMPARE(host_.sent.last().value, 1);
    press("pushButton_Get_Current_RFID");
    QCOMPARE(host_.sent.last().value, 3);
    QByteArray answer = extraPacket({}).left(42) + QByteArray::fromHex("0108"
                                                                       "7b00000000000000");
    answer[0] = '\x11';
    answer[1] = static_cast<char>(37 + 2 + 10);
    answer[2] = '\0';
    send(Message::ExtraPacket, behind(2, answer));
    QCOMPARE(child<QTreeWidget>("treeWidget")->topLevelItemCount(), 1);
    QCOMPARE(text("label_Event_Mode_Alarm_Value"), QString());
    QVERIFY(isOn("pushButton_Set_Guard"));
    send(Message::ExtraPacket, "\x55\x55");
    QCOMPARE(page(), QString("page_ZetaExt"));
}

void ViewTest::productionLimits_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("red"); // r, a and v for the labels that fail
    const auto row = [](const char* name, int mode, const Values& values, const char* red) {
        QTest::newRow(name) << mode << padded(record(values), 101) << red;
    };
    row("lowest", 1, {{"Reserv", 4100}, {"StateU_Ain3", 4800}, {"StateNGauge", 2}}, "");
    row("highest", 2, {{"Reserv", 4500}, {"StateU_Ain3", 5200}, {"StateNGauge", 2}}, "");
    row("below", 1, {{"Reserv", 4099}, {"StateU_Ain3", 4799}, {"StateNGauge", 0xfd}}, "rav");
    row("above", 2, {{"Reserv", 4501}, {"StateU_Ain3", 5201}, {"StateNGauge", 0}}, "ra");
    row("absent", 1, {{"GSM", 31}}, "rav");
    row("absent in mode 2", 2, {{"GSM", 99}}, "ra");
}

void ViewTest::productionLimits()
{
    QFETCH(int, mode);
    QFETCH(QByteArray, answer);
    setMode(mode);
    send(Message::CurrentRecord, answer);
    QCOMPARE(page(), QString("page_Production"));
    QWidget* form = ScriptedHost::window("VLK_Form_TMI_Production");
    QString red;
    const std::pair<const char*, QChar> labels[] = {{"label_Analog_Reserv_Value", 'r'},
                                                    {"label_Analog_Ain3_Value", 'a'},
                                                    {"label_Navi_Valid_Value", 'v'}};
    for (const auto& [name, letter] : labels) {
        const QColor colour = form->findChild<QLabel*>(name)->palette().color(QPalette::WindowText);
        if (colour == Qt::red)
            red += letter;
    }
    QTEST(red, "red");
    const bool strong = QByteArray("absent") == QTest::currentDataTag();
    QCOMPARE(form->findChild<QProgressBar*>("progressBar_GSM_Level_Value")->value(), strong ? 99 : 0);
}

void ViewTest::keysAndTags()
{
    const vlk::IdPair key{0x89abcdef, 0x1};
    host_.send(Message::LiveKey, &key);
    auto* shown = child<QLineEdit>("lineEdit_TM");
    QCOMPARE(shown->text(), QString());
    press("pushButton_TM");
    host_.send(Message::LiveKey, &key);
    QCOMPARE(shown->text(), QString("000189ABCDEF"));
    setMode(1);
    const vlk::IdPair other{1, 0};
    host_.send(Message::LiveKey, &other);
    QCOMPARE(shown->text(), QString("000189ABCDEF"));
    QVERIFY(child<QCheckBox>("checkBox_Get_Auto_TMI")->isChecked());
    const std::int8_t signal = -70;
    host_.send(Message::RfidNumber, &key, &signal);
    QCOMPARE(child<QLineEdit>("lineEdit_RFID")->text(), QString("6604705263"));
    QCOMPARE(child<QSpinBox>("spinBox_RFID")->value(), -70);
}

void ViewTest::detachedInTheMiddle()
{
    child<QCheckBox>("checkBox_Server1")->setChecked(true);
    child<QCheckBox>("checkBox_Server2")->setChecked(true);
    press("pushButton_Taho");
    child<QCheckBox>("checkBox_Get_Auto_TMI")->setChecked(true);
    press("pushButton_Clear");
    host_.attach("another model");
    QVERIFY(view_->isHidden());
    QVERIFY(ScriptedHost::window("VLK_Form_TMI_Taho")->isHidden());
    QVERIFY(!child<QCheckBox>("checkBox_Get_Auto_TMI")->isChecked());
    host_.sent.clear();
    // Late answers are taken, and nothing follows from them: the next server may be another tracker's.
    send(Message::ClearedRecord, padded(numbered(3), 101));
    send(Message::RecordByNumber, behind(3, numbered(4)));
    badParameters();
    QTest::qWait(1100);
    QCOMPARE(takeSent(), Messages{});
    QVERIFY(view_->isHidden());
    child<QCheckBox>("checkBox_Server1")->setChecked(false);
    child<QCheckBox>("checkBox_Server2")->setChecked(false);
}

void ViewTest::badParameters()
{
    const QByteArray empty;
    for (const vlk::MessageInfo& info : vlk::messages) {
        if (info.direction != vlk::Direction::ToPlugin || info.number == Message::PrepareTelemetry)
            continue;
        if (info.p1 != vlk::Parameter::None)
            host_.send(info.number);
        if (info.p1 == vlk::Parameter::BytesAddress)
            host_.send(info.number, &empty);
    }
    const vlk::IdPair pair{1, 2};
    host_.send(Message::RfidNumber, &pair);
}

void ViewTest::tachographRequests()
{
    press("pushButton_Taho");
    QWidget* dialog = ScriptedHost::window("VLK_Form_TMI_Taho");
    QVERIFY(dialog->isVisible());
    const auto box = [dialog](const char* name) { return dialog->findChild<QComboBox*>(name); };
    const auto click = [dialog](const char* name) { dialog->findChild<QPushButton*>(name)->click(); };
    const int questions[] = {1, 3, 4, 5};
    for (int i = 0; i < 4; ++i) {
        box("comboBox_Quest")->setCurrentIndex(i);
        click("pushButton_Quest");
        QCOMPARE(host_.sent.last().number, Message::TachographQuestion);
        QCOMPARE(int(host_.sent.last().value), questions[i]);
    }
    auto* time = dialog->findChild<QDateTimeEdit*>("dateTimeEdit_File");
    time->setDateTime(QDateTime::fromSecsSinceEpoch(0x12345678));
    box("comboBox_Card")->setCurrentIndex(1);
    const char* const requests[] = {"000502ffffff", "000000000000", "000178563412",
                                    "000200000000", "000300000000", "000400000000"};
    for (int i = 0; i < 6; ++i) {
        box("comboBox_File")->setCurrentIndex(i);
        QCOMPARE(box("comboBox_Card")->isEnabled(), i == 0);
        QCOMPARE(time->isEnabled(), i == 2);
        click("pushButton_Create");
        QCOMPARE(request_.toHex(), QByteArray(requests[i]));
    }
    QVERIFY(dialog->findChild<QWidget*>("frame_FileAutorize")->isHidden());
}

void ViewTest::tachographAnswers()
{
    press("pushButton_Taho");
    QWidget* dialog = ScriptedHost::window("VLK_Form_TMI_Taho");
    auto* load = dialog->findChild<QPushButton*>("pushButton_Load");
    auto* quest = dialog->findChild<QTextEdit*>("textEdit_Quest");
    auto* file = dialog->findChild<QTextEdit*>("textEdit_File");
    QVERIFY(!load->isEnabled());
    for (const char status : {'\x20', '\0'}) {
        send(Message::TachographAnswer, behind(6, QByteArray("\1") + status));
        QCOMPARE(quest->toPlainText(), QString(status == 0 ? "tmiw_049: Ok" : "tmiw_049: n/a"));
    }
    send(Message::TachographFileAnswer, behind(6, QByteArray("\0\x12\1\0\0\0", 6)));
    QVERIFY(!load->isEnabled());
    send(Message::TachographFileAnswer, behind(6, QByteArray("\0\0\2\0\0\0../../M.ddd", 17)));
    QCOMPARE(file->toPlainText().split('\n').size(), 4);
    QVERIFY(load->isEnabled());

    const vlk::Paths paths{folder_.path(), {}, {}, {}};
    host_.send(Message::SetPaths, &paths);
    QString proposed;
    ScriptedHost::whenModal([&](QWidget* modal) {
        auto* dialog = qobject_cast<QFileDialog*>(modal);
        proposed = dialog->selectedFiles().value(0);
        dialog->reject();
    });
    load->click();
    QCOMPARE(proposed, folder_.filePath("M.ddd"));
    // The host is told of a cancelled dialog too, with an empty path.
    QCOMPARE(host_.sent.last().number, Message::TachographFileRead);
    QCOMPARE(host_.sent.last().text1, QString());
    for (const std::uint8_t flag : {1, 0})
        host_.send(Message::TachographFileReady, &flag);
    QVERIFY(file->toPlainText().endsWith("tmiw_047\n-=tmiw_048=-"));
    press("pushButton_Taho");
    QVERIFY(!load->isEnabled() && file->toPlainText().isEmpty() && quest->toPlainText().isEmpty());
}

QTEST_MAIN(ViewTest)
#include "tst_view.moc"
