// The telemetry view, as a host sees it: messages in, messages and widgets out.

#include "opened_view.h"
#include "support/data_table.h"

#include <QtTest>
#include <QtWidgets>

using vlk::Message;
using vlk::packetBytes;
using Record = vlk::RecordParts;

namespace {

using Messages = QVector<Message>;

QByteArray numbered(quint32 number, char ver = 30)
{
    return Record{{"NumPage", number}}.bytes(ver);
}

// With the shortest length of a present record.
QByteArray padded(const QByteArray& record, int size = 101)
{
    return behind(3, record).leftJustified(size, '\0');
}

} // namespace

class ViewTest : public QObject, private OpenedView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        start("<SYSTEM><BALANCE USSD=\"*100#\"/></SYSTEM>");
        host.onSend = [this](Message message, void* p1, void* p2) {
            if (message == Message::RequestEventText)
                *static_cast<QString*>(p2) = QString("event %1").arg(vlk::asValue(p1));
            if (message == Message::RequestRecordByNumber)
                number_ = *static_cast<quint32*>(p1);
            if (message == Message::RequestRecordByTime)
                time_ = *static_cast<QDateTime*>(p1);
        };
        // Answers before there is a window find none, and make none.
        sendBadParameters();
        for (const Message answer : {Message::CurrentRecord, Message::RecordByNumber, Message::RecordByTime,
                                     Message::ExtraPacket, Message::TachographAnswer})
            send(answer, padded(numbered(1), 200));
        const vlk::IdPair key{1, 2};
        host.send(Message::LiveKey, &key);
        QVERIFY(!ScriptedHost::window("VLK_Widget_Tmi_View"));
        std::uint8_t answer = 7;
        host.send(Message::PrepareTelemetry, &answer);
        QCOMPARE(int(answer), 0);
        QVERIFY(ScriptedHost::window("VLK_Widget_Tmi_View")->isHidden());
    }

    void init()
    {
        setMode(0);
        open();
        QVERIFY(window->isVisible());
        host.sent.clear();
    }

    void opening()
    {
        sendRecord(numbered(9));
        const vlk::IdPair key{1, 2};
        const qint8 signal = -60;
        child<QLineEdit>("lineEdit_TM")->setText("000189ABCDEF");
        host.send(Message::RfidNumber, &key, &signal);
        host.send(Message::CloseWindows);
        QVERIFY(window->isHidden());
        openAgain();
        QCOMPARE(takeSent(), Messages{Message::RequestCurrentRecord});
        QCOMPARE(window->windowTitle(), QString("tmiw_001 / R-7106 / 123456789ABCDEF / text two / text one"));
        QCOMPARE(page(), QString("page_Empty"));
        QVERIFY(child<QWidget>("frame_TMI_Title")->isHidden());
        QVERIFY(child<QWidget>("groupBox_Btn_Guard")->isHidden());
        QCOMPARE(text("label_Event_NumPage_Value"), QString());
        // Nothing of another vehicle's driver is left.
        for (const char* field : {"lineEdit_TM", "lineEdit_RFID"})
            QCOMPARE(child<QLineEdit>(field)->text(), QString());
        QCOMPARE(child<QSpinBox>("spinBox_RFID")->value(), -128);
        QVERIFY(!isOn("pushButton_Get_Prev") && !isOn("pushButton_Get_Next"));
        const auto time = [this](const char* name) { return child<QDateTimeEdit>(name)->dateTime(); };
        QCOMPARE(time("dateTimeEdit_First").secsTo(time("dateTimeEdit_Last")), 3600LL);
        char ussd[vlk::kBalanceUssdSize];
        host.send(Message::GetBalanceUssd, ussd);
        QCOMPARE(QByteArray(ussd), QByteArray("*100#"));
        const QString absent = folder.filePath("absent.xml");
        host.send(Message::OpenTelemetry, &absent);
        host.send(Message::GetBalanceUssd, ussd);
        QCOMPARE(QByteArray(ussd), QByteArray());

        // What the library does not know is an ordinary mode.
        setMode(3);
        takeSent();
        openAgain();
        QCOMPARE(takeSent(), Messages{Message::RequestCurrentRecord});
        sendRecord(numbered(1));
        QCOMPARE(page(), QString("page_Zeta3"));
    }

    void opensWithinTheScreen()
    {
        const auto isWithin = [](const QWidget* part, const QWidget* whole) {
            return QRect(whole->mapToGlobal({}), whole->size())
                .contains(QRect(part->mapToGlobal({}), part->size()));
        };
        press("pushButton_Func");
        QCoreApplication::processEvents();
        QVERIFY(window->screen()->availableGeometry().contains(window->geometry()));
        for (const char* button : {"pushButton_Help", "pushButton_Close"})
            QVERIFY(isWithin(child<QWidget>(button), window));
        // On so low a screen they take the place of the tabs, until a record is asked for.
        auto* functions = child<QWidget>("frame_Btn_Func");
        QVERIFY(functions->isVisible() && !child<QWidget>("stackedWidget")->isVisible());
        press("pushButton_Get_Current");
        QVERIFY(!functions->isVisible() && child<QWidget>("stackedWidget")->isVisible());
        window->setMinimumSize(0, 0);
        window->resize(1024, 720);
        press("pushButton_Func");
        QVERIFY(functions->isVisible() && child<QWidget>("stackedWidget")->isVisible());
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(!functions->isVisible() && window->isVisible());
    }

    void records_data()
    {
        DataTable<Message, QByteArray, QString, QString>({"message", "answer", "page", "number"})
            .row("100 bytes", Message::CurrentRecord, padded(numbered(5), 100), "page_Empty", "")
            .row("101 bytes", Message::CurrentRecord, padded(numbered(5)), "page_Zeta3", "5")
            .row("cleared, 100 bytes", Message::ClearedRecord, padded(numbered(5), 100), "page_Empty", "")
            .row("cleared, 101 bytes", Message::ClearedRecord, padded(numbered(5)), "page_Zeta3", "5")
            .row("by number", Message::RecordByNumber, behind(3, numbered(6)), "page_Zeta3", "6")
            .row("by time", Message::RecordByTime, behind(13, numbered(7)), "page_Zeta3", "7")
            .row("of a period", Message::RecordOfPeriod, behind(13, numbered(8)), "page_Zeta3", "8")
            .row("protocol 1.0", Message::RecordByNumber, behind(3, numbered(9, 10)), "page_Zeta1", "0")
            .row("protocol 2.0", Message::RecordByNumber, behind(3, numbered(9, 20)), "page_Zeta2", "9")
            .row("protocol 4.0", Message::RecordByNumber, behind(3, numbered(9, 40)), "page_Empty", "")
            .row("no number", Message::RecordByNumber, behind(3, Record{{"Power", 1}}.bytes()), "page_Zeta3",
                 "")
            .row("extra packet", Message::RecordByNumber, behind(3, packetBytes(vlk::kSecondHead)),
                 "page_ZetaExt", "305419896")
            .row("key answer", Message::ExtraPacket, behind(2, packetBytes({})), "page_ZetaExt", "305419896")
            .row("other type", Message::RecordByNumber, behind(3, "\xb2\x1e"), "page_Empty", "")
            .row("type alone", Message::RecordByNumber, behind(3, "\xb0"), "page_Empty", "")
            .row("header alone", Message::RecordByTime, behind(13, {}), "page_Empty", "")
            .row("cut header", Message::RecordByTime, behind(2, {}), "page_Empty", "");
    }
    void records()
    {
        QFETCH(Message, message);
        QFETCH(QByteArray, answer);
        send(message, answer);
        QTEST(page(), "page");
        QTEST(text("label_Event_NumPage_Value"), "number");
        QCOMPARE(child<QWidget>("frame_TMI_Title")->isHidden(), page() == "page_Empty");
        for (const char* name : {"label_Event_State_Text", "label_Event_Mode_Guard_Value",
                                 "label_Event_Mode_Test_Value", "label_Event_Mode_Alarm_Value"})
            QCOMPARE(child(name)->isHidden(), page() == "page_ZetaExt");
        QVERIFY(window->isVisible());
    }

    void walking()
    {
        const std::tuple<quint32, bool, bool> steps[] = {{5, true, false}, {4, true, true},
                                                         {5, true, false}, {6, true, false},
                                                         {0, false, true}, {6, true, false}};
        for (const auto& [number, previous, next] : steps) {
            sendRecord(numbered(number));
            QCOMPARE(isOn("pushButton_Get_Prev"), previous);
            QCOMPARE(isOn("pushButton_Get_Next"), next);
        }
        sendRecord(numbered(4));
        child<QWidget>("pushButton_Get_Next")->setFocus();
        sendRecord(numbered(6));
        QCOMPARE(window->focusWidget(), window);
        sendRecord(numbered(4));
        press("pushButton_Get_Prev");
        QCOMPARE(number_, 3U);
        press("pushButton_Get_Next");
        QCOMPARE(number_, 5U);
        QTest::keyClick(child<QDateTimeEdit>("dateTimeEdit_Show"), Qt::Key_PageUp);
        QCOMPARE(number_, 3U);
        QTest::keyClick(child<QDateTimeEdit>("dateTimeEdit_Show"), Qt::Key_PageDown);
        QCOMPARE(number_, 5U);
        // A slow tracker is not asked twice for what a held button waits for.
        sendRecord(numbered(4));
        host.sent.clear();
        QTest::mousePress(child<QPushButton>("pushButton_Get_Prev"), Qt::LeftButton);
        QTest::qWait(600);
        QCOMPARE(takeSent(), Messages{Message::RequestRecordByNumber});
        sendRecord(numbered(3));
        QTRY_COMPARE(number_, 2U);
        QTest::mouseRelease(child<QPushButton>("pushButton_Get_Prev"), Qt::LeftButton);
    }

    void automaticRequests_data()
    {
        constexpr Message ask = Message::RequestCurrentRecord;
        const Messages production = {ask, ask, ask, ask, ask, Message::WaitStepEnd, ask};
        DataTable<int, Messages>({"mode", "expected"})
            .row("observation", 0, Messages(7, ask))
            .row("production 1", 1, production)
            .row("production 2", 2, production);
    }
    void automaticRequests()
    {
        QFETCH(int, mode);
        setMode(mode);
        host.send(Message::CloseWindows);
        openAgain();
        auto* box = child<QCheckBox>("checkBox_Get_Auto_TMI");
        QCOMPARE(box->isChecked(), mode != 0);
        if (mode == 0) {
            host.sent.clear();
            box->setChecked(true);
        }
        for (const char* name :
             {"groupBox_Btn_Get", "groupBox_Btn_Save", "pushButton_Taho", "pushButton_RFID",
              "pushButton_Get_Current_Touch", "pushButton_Get_Current_RFID"}) {
            QVERIFY2(!isOn(name), name);
            QCOMPARE(child<QWidget>(name)->toolTip(), QString("tmiw_175"));
        }
        QCOMPARE(child<QWidget>("pushButton_SaveToFile")->toolTip(), QString()); // that of its group shows
        for (int i = 0; i < 6; ++i)
            QMetaObject::invokeMethod(window, "slot_timeout_m_Timer_Auto_TMI");
        QTEST(takeSent(), "expected");
        QTRY_COMPARE_WITH_TIMEOUT(host.sent.size(), 1, 3000);
        QCOMPARE(takeSent(), Messages{Message::RequestCurrentRecord});
        box->setChecked(false);
        QVERIFY(isOn("groupBox_Btn_Get") && isOn("pushButton_RFID"));
        QCOMPARE(child<QWidget>("pushButton_SaveToFile")->toolTip(), QString("tmiw_148"));
        QMetaObject::invokeMethod(window, "slot_timeout_m_Timer_Auto_TMI");
        QTest::qWait(1100);
        QCOMPARE(takeSent(), Messages{});
    }

    // After two records that did not come; the step between two rounds of production brings none.
    void oldValuesAreGrey_data()
    {
        DataTable<int, bool>({"mode", "old"}).row("observation", 0, true).row("production", 1, false);
    }
    void oldValuesAreGrey()
    {
        QFETCH(int, mode);
        setMode(mode);
        openAgain();
        auto* box = child<QCheckBox>("checkBox_Get_Auto_TMI");
        box->setChecked(true);
        for (int i = 0; i < 4; ++i)
            QMetaObject::invokeMethod(window, "slot_timeout_m_Timer_Auto_TMI");
        sendRecord(numbered(5));
        const auto isOld = [this] {
            const auto* number = child<QLabel>("label_Event_NumPage_Value");
            const auto* value = child<QStackedWidget>("stackedWidget")
                                    ->currentWidget()
                                    ->findChild<QLabel*>("label_Navi_Alt_Value");
            const bool old = number->foregroundRole() == QPalette::PlaceholderText;
            return old == (value->foregroundRole() == QPalette::PlaceholderText) &&
                   old == text("label_Event_Since").startsWith("cfgt6_451") && old;
        };
        QVERIFY(!isOld());
        QTest::qWait(2500);
        QTEST(isOld(), "old");
        QTRY_VERIFY(isOld());
        const QImage grey =
            child("label_Event_NumPage_Value")->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const auto* pixels = reinterpret_cast<const QRgb*>(grey.constBits());
        const int darkest = qGray(*std::min_element(pixels, pixels + grey.width() * grey.height()));
        QVERIFY2(darkest > 80 && darkest < 180, qPrintable(QString::number(darkest)));
        sendRecord(numbered(6));
        QVERIFY(!isOld());
        QTRY_VERIFY(isOld());
        // A record that is not awaited is as old as it says.
        box->setChecked(false);
        QVERIFY(!isOld());
    }

    void clearing()
    {
        const QByteArray answer = padded(numbered(1));
        auto* first = child<QCheckBox>("checkBox_Server1");
        auto* third = child<QCheckBox>("checkBox_Server3");
        press("pushButton_Clear");
        QCOMPARE(takeSent(), Messages{});
        QCOMPARE(text("label_SavedInPart"), QString("tmiw_267"));
        first->setChecked(true);
        third->setChecked(true);
        // Nobody pressed the button, so an answer moves nothing.
        send(Message::ClearedRecord, answer);
        QCOMPARE(takeSent(), Messages{});
        press("pushButton_Clear");
        QCOMPARE(text("label_SavedInPart"), QString());
        QCOMPARE(host.sent.last().value, 1);
        vlk::RunningWork work;
        host.send(Message::GetRunningWork, &work);
        QCOMPARE(work.clearing, 0b101U);
        send(Message::ClearedRecord, answer.left(100));
        QVERIFY(first->isChecked());
        send(Message::ClearedRecord, answer);
        QVERIFY(!first->isChecked() && third->isChecked());
        first->setChecked(true); // behind its turn
        QCOMPARE(host.sent.last().number, Message::ClearServerData);
        QCOMPARE(host.sent.last().value, 3);
        send(Message::ClearedRecord, answer);
        QVERIFY(!third->isChecked());
        QCOMPARE(host.sent.last().value, 3);
        host.sent.clear();
        send(Message::ClearedRecord, answer);
        QCOMPARE(takeSent(), Messages{});
        QVERIFY(first->isChecked());
        first->setChecked(false);
    }

    void zoneMovesEditors()
    {
        auto* zone = child<QSpinBox>("spinBox_TimeOffset");
        zone->setValue(3);
        const auto editors = [this] {
            return QVector<QDateTimeEdit*>{child<QDateTimeEdit>("dateTimeEdit_Show"),
                                           child<QDateTimeEdit>("dateTimeEdit_First"),
                                           child<QDateTimeEdit>("dateTimeEdit_Last")};
        };
        QVector<QDateTime> before;
        for (const QDateTimeEdit* editor : editors())
            before << editor->dateTime();
        press("pushButton_Show");
        const QDateTime asked = time_;
        QVERIFY(qAbs(asked.secsTo(QDateTime::currentDateTimeUtc())) < 60);
        sendRecord(Record{{"Time", 1738411200}}.bytes()); // noon UTC
        QCOMPARE(text("label_Event_DateTime_Value"), QString("15:00:00 01.02.2025 (UTC +3)"));

        zone->setValue(5);
        for (const QDateTimeEdit* editor : editors())
            QCOMPARE(before.takeFirst().secsTo(editor->dateTime()), 7200LL);
        press("pushButton_Show");
        QCOMPARE(time_, asked);
        QCOMPARE(text("label_Event_DateTime_Value"), QString("17:00:00 01.02.2025 (UTC +5)"));
        // A form that was not on show has the zone with its next record.
        sendRecord(packetBytes(vlk::kSecondHead));
        QVERIFY(text("label_Event_DateTime_Value").endsWith("(UTC +5)"));
    }

    void bringsBackTheLastPeriod()
    {
        const vlk::Paths paths{folder.path(), {}, {}, {}};
        host.send(Message::SetPaths, &paths);
        openAgain();
        auto* button = child<QToolButton>("toolButton_LastPeriod");
        QVERIFY(!button->isEnabled());
        auto* first = child<QDateTimeEdit>("dateTimeEdit_First");
        const QDateTime chosen(QDate(2025, 2, 1), QTime(8, 0), Qt::UTC);
        child<QSpinBox>("spinBox_TimeOffset")->setValue(-3);
        first->setDateTime(chosen);
        for (int run = 0; run < 2; ++run) {
            window->close();
            openAgain();
            QVERIFY(button->isEnabled() && first->dateTime() != chosen);
            press("toolButton_LastPeriod");
            QCOMPARE(first->dateTime(), chosen);
            QCOMPARE(child<QSpinBox>("spinBox_TimeOffset")->value(), -3);
        }
    }

    void guardFollowsTheRecord_data()
    {
        DataTable<QByteArray, QStringList, bool, bool>({"record", "words", "guard", "noGuard"})
            .row("observation, test", Record{{"State", 1}}.bytes(), {"", "tmizta_005", "tmizta_001", ""},
                 true, false)
            .row("guard, alarm", Record{{"State", 0x0c}}.bytes(), {"", "tmizta_006", "", "tmizta_004"}, false,
                 true)
            .row("mode 2", Record{{"State", 0x10}}.bytes(), {"", "tmizta_007", "", ""}, false, false)
            .row("mode 3", Record{{"State", 0xf8}}.bytes(), {"", "tmizta_008", "", ""}, false, false)
            .row("absent", Record{{"Code", 12}}.bytes(), {"event 12", "", "", ""}, false, false);
    }
    void guardFollowsTheRecord()
    {
        QFETCH(QByteArray, record);
        sendRecord(record);
        QStringList words;
        for (const char* name : {"Code_Value", "Mode_Guard_Value", "Mode_Test_Value", "Mode_Alarm_Value"})
            words << text(QByteArray("label_Event_") + name);
        QTEST(words, "words");
        // The box itself stays hidden in this model.
        QVERIFY(child<QWidget>("groupBox_Btn_Guard")->isHidden());
        QTEST(isOn("pushButton_Set_Guard"), "guard");
        QTEST(isOn("pushButton_Set_NoGuard"), "noGuard");
    }

    void extraEntries()
    {
        const QByteArray entries = QByteArray::fromHex("01087b000000000000000203") + "sixteen letters!" +
                                   QByteArray::fromHex("09030aff0103ffffffffffffffffff09050102");
        sendRecord(packetBytes(vlk::kSecondHead + entries));
        auto* tree = child<QTreeWidget>("treeWidget");
        QStringList rows;
        for (int i = 0; i < tree->topLevelItemCount(); ++i)
            rows << tree->topLevelItem(i)->text(0) + '|' + tree->topLevelItem(i)->text(1);
        QCOMPARE(rows, (QStringList{"TM key|123 (0x00000000007B)", "Card|sixteen letters!",
                                    "Unknow packet|0a ff 01  (size = 3 byte)",
                                    "RFID|18446744073709551615 (0xFFFFFFFFFFFFFFFF)",
                                    "Unknow packet|01 02  (size = 5 byte)"}));
        // The tabs have labels of the same names.
        WindowParts form;
        form.window = ScriptedHost::window("VLK_Form_TMI_ZetaExt");
        const std::pair<const char*, const char*> values[] = {
            {"State", "tmizta_028"}, {"Count", "10"},   {"Lat", "0 -0.0002'"}, {"Alt", "183"},
            {"Speed", "10.00"},      {"Course", "270"}, {"Way", "2.50"}};
        for (const auto& [name, value] : values)
            QCOMPARE(form.text(QByteArray("label_Navi_") + name + "_Value"), QString(value));
        QCOMPARE(text("label_Event_Code_Value"), QString("event 35"));
        QCOMPARE(text("label_Event_Mode_Alarm_Value"), QString("tmizta_004"));
    }

    void keyAnswer()
    {
        press("pushButton_Get_Current_Touch");
        QCOMPARE(host.sent.last().value, 1);
        press("pushButton_Get_Current_RFID");
        QCOMPARE(host.sent.last().value, 3);
        QByteArray answer = packetBytes(QByteArray::fromHex("01087b00000000000000"));
        answer[0] = '\x11';
        send(Message::ExtraPacket, behind(2, answer));
        QCOMPARE(child<QTreeWidget>("treeWidget")->topLevelItemCount(), 1);
        QCOMPARE(text("label_Event_Mode_Alarm_Value"), QString());
        QVERIFY(isOn("pushButton_Set_Guard"));
        send(Message::ExtraPacket, "\x55\x55");
        QCOMPARE(page(), QString("page_ZetaExt"));
    }

    void productionLimits_data()
    {
        const auto power = [](quint64 reserve, quint64 line, quint64 gauge) {
            return Record{{"Reserv", reserve}, {"StateU_Ain3", line}, {"StateNGauge", gauge}}.bytes();
        };
        // r, a and v for the labels that fail
        DataTable<int, QByteArray, QString, int>({"mode", "record", "red", "bar"})
            .row("lowest", 1, power(4100, 4800, 2), "", 0)
            .row("highest", 2, power(4500, 5200, 2), "", 0)
            .row("below", 1, power(4099, 4799, 0xfd), "rav", 0)
            .row("above", 2, power(4501, 5201, 0), "ra", 0)
            .row("absent", 1, Record{{"GSM", 31}}.bytes(), "rav", 99)
            .row("absent in mode 2", 2, Record{{"GSM", 99}}.bytes(), "ra", 0);
    }
    void productionLimits()
    {
        QFETCH(int, mode);
        QFETCH(QByteArray, record);
        setMode(mode);
        send(Message::CurrentRecord, padded(record));
        QCOMPARE(page(), QString("page_Production"));
        QWidget* form = ScriptedHost::window("VLK_Form_TMI_Production");
        QString red;
        const std::pair<const char*, QChar> labels[] = {{"label_Analog_Reserv_Value", 'r'},
                                                        {"label_Analog_Ain3_Value", 'a'},
                                                        {"label_Navi_Valid_Value", 'v'}};
        for (const auto& [name, letter] : labels) {
            if (form->findChild<QLabel*>(name)->palette().color(QPalette::WindowText) == Qt::red)
                red += letter;
        }
        QTEST(red, "red");
        const auto* level = form->findChild<QProgressBar*>("progressBar_GSM_Level_Value");
        QTEST(level->value(), "bar");
        QCOMPARE(level->format(), QString("%p %"));
    }

    void keysAndTags()
    {
        const vlk::IdPair key{0x89abcdef, 0x1};
        host.send(Message::LiveKey, &key);
        auto* shown = child<QLineEdit>("lineEdit_TM");
        QCOMPARE(shown->text(), QString());
        press("pushButton_TM");
        host.send(Message::LiveKey, &key);
        QCOMPARE(shown->text(), QString("000189ABCDEF"));
        setMode(1);
        const vlk::IdPair other{1, 0};
        host.send(Message::LiveKey, &other);
        QCOMPARE(shown->text(), QString("000189ABCDEF"));
        QVERIFY(child<QCheckBox>("checkBox_Get_Auto_TMI")->isChecked());
        const std::int8_t signal = -70;
        host.send(Message::RfidNumber, &key, &signal);
        QCOMPARE(child<QLineEdit>("lineEdit_RFID")->text(), QString("6604705263"));
        QCOMPARE(child<QSpinBox>("spinBox_RFID")->value(), -70);
        QCOMPARE(child<QSpinBox>("spinBox_RFID")->text(), QString("-70 abbr_050"));
    }

    // In a window that is hidden already too.
    void endOfAllTimers()
    {
        auto* box = child<QCheckBox>("checkBox_Get_Auto_TMI");
        for (const Message message : {Message::TrackerDetached, Message::CloseWindows}) {
            init();
            sendRecord(numbered(9));
            sendRecord(numbered(8));
            QTest::mousePress(child<QPushButton>("pushButton_Get_Prev"), Qt::LeftButton);
            host.send(message);
            QVERIFY(window->isHidden());
            box->setChecked(true);
            host.send(message);
            QVERIFY(!box->isChecked());
            // The key that was asked for comes late.
            setMode(1);
            press("pushButton_TM");
            const vlk::IdPair key{1, 2};
            host.send(Message::LiveKey, &key);
            QVERIFY(!box->isChecked());
            host.sent.clear();
            sendRecord(numbered(7));
            QTest::qWait(400);
            QCOMPARE(takeSent(), Messages{});
        }
    }

    void detachedInTheMiddle()
    {
        QCheckBox* const servers[] = {child<QCheckBox>("checkBox_Server1"),
                                      child<QCheckBox>("checkBox_Server2")};
        for (QCheckBox* server : servers)
            server->setChecked(true);
        press("pushButton_Taho");
        child<QCheckBox>("checkBox_Get_Auto_TMI")->setChecked(true);
        press("pushButton_Clear");
        host.attach("another model");
        QVERIFY(window->isHidden() && ScriptedHost::window("VLK_Form_TMI_Taho")->isHidden());
        QVERIFY(!child<QCheckBox>("checkBox_Get_Auto_TMI")->isChecked());
        host.sent.clear();
        // Late answers are taken, and nothing follows from them: the next server may be another tracker's.
        send(Message::ClearedRecord, padded(numbered(3)));
        sendRecord(numbered(4));
        sendBadParameters();
        QTest::qWait(1100);
        QCOMPARE(takeSent(), Messages{});
        QVERIFY(window->isHidden());
        for (QCheckBox* server : servers)
            server->setChecked(false);
    }

private:
    QString page() const { return child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(); }
    void setMode(std::int32_t mode) { host.send(Message::SetHostMode, &mode); }
    Messages takeSent()
    {
        Messages numbers;
        for (const auto& sent : std::exchange(host.sent, {})) {
            if (sent.number != Message::RequestEventText)
                numbers << sent.number;
        }
        return numbers;
    }
    void sendBadParameters()
    {
        for (const vlk::MessageInfo& info : vlk::kMessages) {
            if (info.direction != vlk::Direction::ToPlugin || info.number == Message::PrepareTelemetry)
                continue;
            if (info.p1 != vlk::Parameter::None)
                host.send(info.number);
            if (info.p1 == vlk::Parameter::BytesAddress)
                send(info.number, {});
        }
        const vlk::IdPair pair{1, 2};
        host.send(Message::RfidNumber, &pair);
    }

    quint32 number_ = 0;
    QDateTime time_;
};

QTEST_MAIN(ViewTest)
#include "tst_view.moc"
