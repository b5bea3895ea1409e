// The Transfer page: servers, operators, the key and the connection test. What enables what, and what files
// and edits become, stands in the golden tables.

#include "support/answers.h"
#include "support/data_table.h"
#include "support/disagreements.h"
#include "support/typing.h"
#include "transfer_page.h"

#include <QtTest>
#include <QtWidgets>

class TransferTest : public QObject, private TransferPage
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }

    void noProtocol()
    {
        set("Transfer_comboBox_Protocol_Format_Main", -1);
        QCOMPARE(saved("SRV1/protocol"), QString("VLKB_ZETA"));
    }

    void addressOfAServerThatIsNotUsed()
    {
        set("GPRSSrv_lineEdit_IP_DNS_Reserv_1", "typed.example");
        QCOMPARE(saved("SRV2/addr"), QString("0.0.0.0"));
        load(save());
        QVERIFY(!get<QGroupBox>("GPRSSrv_groupBox_Reserv_1")->isChecked());
        QCOMPARE(textOf("GPRSSrv_lineEdit_IP_DNS_Reserv_1"), QString("0.0.0.0"));
    }

    // What cannot be an address is marked and saved all the same.
    void addressThatCannotBe_data()
    {
        DataTable<QString, bool>({"address", "marked"})
            .row("none", "", false)
            .row("IP", "10.0.255.1", false)
            .row("host", "srv-1.fleet_2.example.com", false)
            .row("single label", "localhost", false)
            .row("root of the names", "example.com.", false)
            .row("digits first", "1c.example", false)
            .row("blank inside", "srv 1.example", true)
            .row("address of a page", "http://example.com", true)
            .row("Cyrillic", "трекер.рф", true)
            .row("number too large", "10.0.256.1", true)
            .row("three numbers", "10.0.1", true)
            .row("empty label", "srv..example", true)
            .row("point at the end", "10.0.0.1.", true)
            .row("hyphen first", "-srv.example", true);
    }
    void addressThatCannotBe()
    {
        QFETCH(QString, address);
        auto* edit = get<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main");
        type(edit, "<All>" + address);
        QTEST(edit->toolTip() == QString("cfgt1_125"), "marked");
        QFETCH(bool, marked);
        type(edit, " ");
        QCOMPARE(edit->toolTip(), QString(marked ? "cfgt1_125" : "typed_blanks"));
        type(edit, "<Back>");
        QCOMPARE(saved("SRV1/addr"), address);
    }

    void portZeroBesideAnAddressIsMarked()
    {
        const auto isMarked = [&] { return !get("GPRSSrv_spinBox_Port_Main")->toolTip().isEmpty(); };
        load({{"SRV1/addr", "10.0.0.1"}, {"SRV1/port", "0"}});
        QVERIFY(isMarked());
        type(get<QLineEdit>("GPRSSrv_lineEdit_IP_DNS_Main"), "<All>0.0.0.0<Enter>");
        QVERIFY(!isMarked());
        load({{"SRV1/addr", "10.0.0.1"}, {"SRV1/port", "4000"}});
        QVERIFY(!isMarked());
        QCOMPARE(saved("SRV1/port"), QString("4000"));
    }

    void objectName()
    {
        load({{"OBJECT/name", "Грузовик <7> & «прицеп»"}, {"AP1/pass", "a \"b\" 'c'"}});
        QCOMPARE(textOf("lineEdit_Name"), QString("Грузовик <7> & «прицеп»"));
        QCOMPARE(page().objectName(), QString("Грузовик <7> & «прицеп»"));
        QCOMPARE(saved("AP1/pass"), QString("a \"b\" 'c'"));
    }

    void defaultsShowTheMainServer()
    {
        get<QComboBox>("comboBox_ServerType")->setCurrentIndex(2);
        page().setDefaults();
        QCOMPARE(get<QStackedWidget>("stackedWidget_Server")->currentWidget(), get("page_Main"));
    }

    // A load counts them within a day.
    void periodsBeyondADay()
    {
        const QString connect = "Srv_Operation_spinBox_Periodic_Connect_Period_";
        const QString block = "Srv_Operation_spinBox_Block_";
        const auto shown = [&](const QString& name) { return get<QSpinBox>(name)->value(); };
        set(connect + "H", 71);
        set(block + "H", 24);
        QCOMPARE(notSaved({{"RULES/cnctTimer", "255600"}, {"RULES/blockTimer", "86700"}}), QStringList());
        QVERIFY(shown(connect + "H") == 71 && shown(block + "H") == 24);
        load(save());
        QVERIFY(shown(connect + "H") == 23 && shown(block + "H") == 0 && shown(block + "M") == 5);
    }

    void testResult()
    {
        for (const bool ok : {true, false}) {
            QString text;
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                text = box.text();
                QCOMPARE(box.icon(), QMessageBox::Warning);
                box.buttons().first()->click();
            });
            page().slot_testConnected("127.0.0.1", "localhost", ok);
            QCOMPARE(text, QString(ok ? "cfgt1_109" : "cfgt1_108"));
        }
    }

    void encryptionKey()
    {
        QVERIFY(!isOn("pushButton_Crypto"));
        get<QCheckBox>("Transfer_checkBox_Protocol_Crypto_Reserv_2")->setChecked(true);
        static const QRegularExpression form("^(?!(..)*F[EF])[0-9A-F]{32}$");
        QSet<QString> keys;
        for (int i = 0; i < 200; ++i) {
            press("pushButton_Crypto");
            QVERIFY2(form.match(textOf("lineEdit_Crypto")).hasMatch(), qPrintable(textOf("lineEdit_Crypto")));
            keys << textOf("lineEdit_Crypto");
        }
        QCOMPARE(keys.size(), 200);
        QCOMPARE(saved("CRYPTO/key"), textOf("lineEdit_Crypto"));
        press("pushButton_Crypto_Clear");
        QCOMPARE(saved("CRYPTO/key"), QString());
    }

    // What a preset fills in is recognised when it comes back from a file.
    void operators()
    {
        for (int item = 0; item < 7; ++item) {
            load({{"AP1/name", "own.apn"}});
            get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(6 - item);
            get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(item);
            QCOMPARE(textOf("Transfer_lineEdit_GSM_Login_1"), textOf("Transfer_lineEdit_GSM_Psw_1"));
            const Values values = save();
            page().setDefaults();
            load(values);
            QCOMPARE(indexOf("Transfer_comboBox_GSM_Operator_1"), item == 6 ? 5 : item);
        }
    }

    void operatorOfAFile_data()
    {
        DataTable<QString, QString, int>({"apn", "login", "item"})
            .row("empty", "", "", 5)
            .row("unknown", "own.apn", "me", 6)
            .row("another login", "internet.mts.ru", "me", 6)
            .row("login alone", "", "me", 6);
    }
    void operatorOfAFile()
    {
        QFETCH(QString, apn);
        QFETCH(QString, login);
        for (int before = 0; before < 7; ++before) {
            get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(before);
            load({{"AP1/name", apn}, {"AP1/login", login}});
            QTEST(indexOf("Transfer_comboBox_GSM_Operator_1"), "item");
            QCOMPARE(textOf("Transfer_lineEdit_GSM_APN_1"), apn);
            QCOMPARE(textOf("Transfer_lineEdit_GSM_Login_1"), login);
        }
    }

    // Servers stay, although their lists start anew.
    void retranslateStartsLists()
    {
        load({{"SRV1/addr", "a.example"}, {"SRV1/protocol", "UNDS"}, {"ROAMSIM1/mode", "3"}});
        get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(5);
        page().retranslate();
        for (const QComboBox* list : page().findChildren<QComboBox*>())
            QCOMPARE(list->currentIndex(), 0);
        QCOMPARE(saved("SRV1/addr"), QString("a.example"));
        QVERIFY(isOn("frame_RBlock"));
        QVERIFY(!isOn("frame_RPerion"));
        QVERIFY(!isOn("pushButton_AutoAPN_1"));
        QCOMPARE(disagreements(page().settings().binder()), QStringList());
    }

private:
    const char* property(const QString& name)
    {
        return qobject_cast<QComboBox*>(get(name)) ? "currentIndex"
                                                   : get(name)->metaObject()->userProperty().name();
    }
    void set(const QString& name, const QVariant& value) { get(name)->setProperty(property(name), value); }
};

QTEST_MAIN(TransferTest)
#include "tst_transfer.moc"
