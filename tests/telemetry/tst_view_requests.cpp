// What the telemetry view asks of a host, by keys, buttons and timers.

#include "asked_view.h"
#include "support/data_table.h"

class ViewRequestsTest : public QObject, private AskedView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startView(); }
    void init() { openView(); }

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

    void clearing()
    {
        const QByteArray answer = padded(numbered(1));
        auto* first = child<QCheckBox>("checkBox_Server1");
        auto* third = child<QCheckBox>("checkBox_Server3");
        // Nothing moves under the mouse for the notice, which goes with its cause.
        QCoreApplication::processEvents();
        const auto* content = window->findChild<QWidget*>("stackedWidget");
        const QPoint before = content->pos();
        press("pushButton_Clear");
        QCOMPARE(takeSent(), Messages{});
        QCOMPARE(text("label_SavedInPart"), QString("tmiw_267"));
        QCoreApplication::processEvents();
        QCOMPARE(content->pos(), before);
        first->setChecked(true);
        QCOMPARE(text("label_SavedInPart"), QString());
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
        // Its records are nobody's to clear by a press that was meant for this one.
        for (const QCheckBox* server : servers)
            QVERIFY(!server->isChecked());
    }
};

QTEST_MAIN(ViewRequestsTest)
#include "tst_view_requests.moc"
