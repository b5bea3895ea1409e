// What the telemetry view shows of the records that a host sends.

#include "asked_view.h"
#include "support/data_table.h"

class ViewTest : public QObject, private AskedView
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startView(); }
    void init() { openView(); }

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
        // So they do where a row of them is wider than the window.
        for (const int width : {800, 1600}) {
            window->resize(width, 720);
            press("pushButton_Func");
            QVERIFY(functions->isVisible());
            QCOMPARE(child<QWidget>("stackedWidget")->isVisible(), width == 1600);
            press("pushButton_Func");
        }
        press("pushButton_Func");
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

    // After two records that did not come, or one that was asked for by hand; the step between two rounds of
    // production brings none.
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
        QVERIFY(!isOld());
        QTest::qWait(2500);
        QTEST(isOld(), "old");
        QTRY_VERIFY(isOld());
        const QImage grey =
            child("label_Event_NumPage_Value")->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const auto* pixels = reinterpret_cast<const QRgb*>(grey.constBits());
        const int darkest =
            qGray(*std::min_element(pixels, pixels + std::ptrdiff_t{grey.width()} * grey.height()));
        QVERIFY2(darkest > 80 && darkest < 180, qPrintable(QString::number(darkest)));
        sendRecord(numbered(6));
        QVERIFY(!isOld());
        QTRY_VERIFY(isOld());
        // A record that is not awaited is as old as it says.
        box->setChecked(false);
        QVERIFY(!isOld());
        // One that was asked for by hand, and does not come.
        press("pushButton_Get_Prev");
        QVERIFY(!isOld());
        QTRY_VERIFY(isOld());
        sendRecord(numbered(5));
        QVERIFY(!isOld());
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

private:
    // What is on show is grey, and says since when it holds.
    bool isOld() const
    {
        const auto* number = child<QLabel>("label_Event_NumPage_Value");
        const auto* value = child<QStackedWidget>("stackedWidget")
                                ->currentWidget()
                                ->findChild<QLabel*>("label_Navi_Alt_Value");
        const bool old = number->foregroundRole() == QPalette::PlaceholderText;
        return old == (value->foregroundRole() == QPalette::PlaceholderText) &&
               old == text("label_Event_Since").startsWith("cfgt6_451") && old;
    }
};

QTEST_MAIN(ViewTest)
#include "tst_view.moc"
