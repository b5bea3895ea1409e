// The Transfer page: what depends on what, driven through widgets by name and through files.

#include "support/data_table.h"
#include "transfer_page.h"

#include <QtTest>
#include <QtWidgets>

class TransferTest : public QObject, private TransferPage
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }

    void behaviour_data()
    {
        DataTable<QString>({"steps"})
            .row("connection",
                 "load RULES/cnctType=0; shows Srv_Operation_comboBox_TypeConnect 1; saves RULES/cnctType 0; "
                 "off Srv_Operation_frame_Permanent_Connect; on Srv_Operation_frame_Periodic_Connect; "
                 "load; on Srv_Operation_frame_Permanent_Connect; off Srv_Operation_frame_Periodic_Connect; "
                 "set Srv_Operation_comboBox_TypeConnect 1; off Srv_Operation_frame_Permanent_Connect; "
                 "on Srv_Operation_frame_Periodic_Connect; saves RULES/cnctType 0")
            .row("missing flag", "load; shows checkBox_NoCur true; saves RULES/noCur 1")
            .row("block timer", "load RULES/blockTimer=300; shows Srv_Operation_spinBox_Block_H 0; "
                                "shows Srv_Operation_spinBox_Block_M 5; saves RULES/blockTimer 300")
            .row("connection period beyond a day",
                 "load RULES/cnctTimer=90060; shows Srv_Operation_spinBox_Periodic_Connect_Period_H 1; "
                 "saves RULES/cnctTimer 3660")
            .row("negative connection period",
                 "load RULES/cnctTimer=-60; shows Srv_Operation_spinBox_Periodic_Connect_Period_H 23; "
                 "saves RULES/cnctTimer 86340")
            .row("no group timer", "load RULES/grpTimer=0; off spinBox_GrpTimer; saves RULES/grpTimer 0")
            .row("group timer",
                 "load RULES/grpTimer=45; shows spinBox_GrpTimer 45; saves RULES/grpTimer 45; "
                 "set spinBox_GrpTimer 200; set checkBox_GrpTimer false; off spinBox_GrpTimer; "
                 "saves RULES/grpTimer 0; set checkBox_GrpTimer true; shows spinBox_GrpTimer 30; "
                 "set spinBox_GrpTimer 301; shows spinBox_GrpTimer 300")
            .row("roaming connection",
                 "load ROAM/cnctTimer=7200; shows spinBox_RConnectPeriod 120; saves ROAM/cnctTimer 7200")
            .row("roaming block",
                 "load ROAM/blockTimer=90000; shows spinBox_RBlockH 25; saves ROAM/blockTimer 90000; "
                 "set spinBox_RBlockH 1; set spinBox_RBlockM 0; saves ROAM/blockTimer 3600; "
                 "set spinBox_RBlockH 0; saves ROAM/blockTimer 300")
            .row("unknown roaming mode",
                 "load ROAMSIM1/mode=7; shows comboBox_RModeSim_1 2; saves ROAMSIM1/mode 2")
            .row("unknown flag", "load ROAMSIM1/dontCnct=5; shows checkBox_sendData false; saves "
                                 "ROAMSIM1/dontCnct 1")
            .row("a day", "load QSP/cnctTimer=86400; shows spinBox_QSP_CnctTimer_hh 0; saves QSP/cnctTimer "
                          "86400; set spinBox_QSP_CnctTimer_dd 0; saves QSP/cnctTimer 600; "
                          "set spinBox_QSP_CnctTimer_hh 2; set spinBox_QSP_CnctTimer_mm 0; "
                          "saves QSP/cnctTimer 7200; set spinBox_QSP_CnctTimer_hh 0; saves QSP/cnctTimer 600")
            .row("more than a day",
                 "load QSP/cnctTimer=90000; shows spinBox_QSP_CnctTimer_hh 1; saves QSP/cnctTimer 90000")
            .row("less than allowed",
                 "load QSP/cnctTimer=60; shows spinBox_QSP_CnctTimer_mm 10; saves QSP/cnctTimer 600")
            .row("protocol",
                 "load SRV1/protocol=VLKB_ZETA; shows Transfer_comboBox_Protocol_Format_Main ZETA; "
                 "saves SRV1/protocol ZETA; set Transfer_comboBox_Protocol_Format_Main -1; "
                 "saves SRV1/protocol VLKB_ZETA")
            .row("highest object",
                 "load SRV1/objID=2147483647; shows Transfer_spinBox_Protocol_ObjectID_Main 2147483647; "
                 "saves SRV1/objID 2147483647")
            .row("server without an address",
                 "load SRV2/addr=; shows GPRSSrv_groupBox_Reserv_1 true; saves SRV2/addr ")
            .row("server not used",
                 "load SRV2/addr=0.0.0.0; shows GPRSSrv_groupBox_Reserv_1 false; saves SRV2/addr 0.0.0.0")
            .row("server taken into use",
                 "set GPRSSrv_groupBox_Reserv_1 true; saves SRV2/addr 0.0.0.0; saves SRV2/port 4000; "
                 "set GPRSSrv_lineEdit_IP_DNS_Reserv_1 track.example; saves SRV2/addr track.example; "
                 "set GPRSSrv_groupBox_Reserv_1 false; shows GPRSSrv_lineEdit_IP_DNS_Reserv_1 ; "
                 "set GPRSSrv_lineEdit_IP_DNS_Reserv_1 typed.example; saves SRV2/addr 0.0.0.0; reload; "
                 "shows GPRSSrv_groupBox_Reserv_1 false; shows GPRSSrv_lineEdit_IP_DNS_Reserv_1 0.0.0.0")
            .row("test needs an address",
                 "load SRV1/addr=a.example SRV2/addr=0.0.0.0 SRV3/addr=; on GPRSSrv_toolButton_Test_Main; "
                 "off GPRSSrv_toolButton_Test_Reserv_1; off GPRSSrv_toolButton_Test_Reserv_2; "
                 "set GPRSSrv_lineEdit_IP_DNS_Main ; off GPRSSrv_toolButton_Test_Main; "
                 "set GPRSSrv_groupBox_Reserv_1 true; on GPRSSrv_toolButton_Test_Reserv_1")
            .row("roaming modes",
                 "set comboBox_RModeSim_1 0; on checkBox_RNoSmsSim_1; on checkBox_RNoCallSim_1; "
                 "off frame_RPerion; off frame_RConnectPeriod; on frame_RBlock; "
                 "set comboBox_RModeSim_1 1; on checkBox_RNoSmsSim_1; on checkBox_RNoCallSim_1; "
                 "off frame_RPerion; on frame_RConnectPeriod; on frame_RBlock; "
                 "set comboBox_RModeSim_1 2; off checkBox_RNoSmsSim_1; off checkBox_RNoCallSim_1; "
                 "off frame_RPerion; off frame_RConnectPeriod; off frame_RBlock; "
                 "set comboBox_RModeSim_1 3; on checkBox_RNoSmsSim_1; on checkBox_RNoCallSim_1; "
                 "on frame_RPerion; off frame_RConnectPeriod; on frame_RBlock");
    }
    // Load these keys, set a widget, and see what a widget shows, whether it is on or off, what is saved.
    void behaviour()
    {
        QFETCH(QString, steps);
        for (const QString& step : steps.split("; ")) {
            const QStringList words = step.split(' ');
            const QByteArray object = words.value(1).toLatin1();
            const char* const name = object.constData();
            const QString value = words.value(2);
            if (words[0] == "load") {
                Values values;
                for (const QString& word : words.mid(1))
                    values[word.section('=', 0, 0)] = word.section('=', 1);
                load(values);
            } else if (words[0] == "reload") {
                load(save());
            } else if (words[0] == "set") {
                QVERIFY2(get(name)->setProperty(property(name), value), qPrintable(step));
            } else if (words[0] == "shows") {
                const auto* list = qobject_cast<QComboBox*>(get(name));
                const QString shown = get(name)->property(property(name)).toString();
                QVERIFY2(shown == value || (list && list->currentText() == value),
                         qPrintable(step + ", not " + shown));
            } else if (words[0] == "saves") {
                QVERIFY2(saved(name) == value, qPrintable(step + ", not " + saved(name)));
            } else {
                QVERIFY2(isOn(name) == (words[0] == "on"), qPrintable(step));
            }
        }
    }

    void objectName()
    {
        load({{"OBJECT/name", "Грузовик <7> & «прицеп»"}, {"AP1/pass", "a \"b\" 'c'"}});
        QCOMPARE(textOf("lineEdit_Name"), QString("Грузовик <7> & «прицеп»"));
        QCOMPARE(page().objectName(), QString("Грузовик <7> & «прицеп»"));
        QCOMPARE(saved("AP1/pass"), QString("a \"b\" 'c'"));
    }

    void defaultFileReadsBackEqual()
    {
        const Values defaults = save();
        load(defaults);
        QCOMPARE(save(), defaults);
    }

    void defaults()
    {
        load({{"SRV1/addr", "0.0.0.0"},
              {"SRV2/addr", "b"},
              {"CRYPTO/srv2Mode", "1"},
              {"RULES/cnctType", "0"}});
        get<QComboBox>("comboBox_ServerType")->setCurrentIndex(2);
        QCOMPARE(get<QStackedWidget>("stackedWidget_Server")->currentWidget(), get("page_Reserv_2"));
        page().setDefaults();
        QCOMPARE(get<QStackedWidget>("stackedWidget_Server")->currentWidget(), get("page_Main"));
        const Values values = save();
        const Values expected = {
            {"OBJECT/name", "R-7106_Config"}, {"SRV1/addr", ""},         {"SRV1/port", "0"},
            {"SRV2/addr", "0.0.0.0"},         {"SRV2/dcID", "1"},        {"RULES/cnctType", "1"},
            {"RULES/grpTimer", "30"},         {"ROAMSIM1/mode", "2"},    {"CRYPTO/srv2Mode", "0"},
            {"QSP/cnctTimer", "86400"},       {"ROAM/blockTimer", "300"}};
        for (auto value = expected.begin(); value != expected.end(); ++value)
            QCOMPARE(value.key() + '=' + values[value.key()], value.key() + '=' + value.value());
        QCOMPARE(indexOf("Transfer_comboBox_GSM_Operator_1"), 5);
        QVERIFY(!isOn("frame_Crypto"));
        QVERIFY(isOn("Srv_Operation_frame_Permanent_Connect"));
    }

    void testResult_data()
    {
        DataTable<bool, QString>({"ok", "text"})
            .row("answers", true, "cfgt1_109")
            .row("silent", false, "cfgt1_108");
    }
    void testResult()
    {
        QFETCH(bool, ok);
        QString text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QTimer::singleShot(0, this, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            text = box->text();
            icon = box->icon();
            box->buttons().first()->click();
        });
        page().slot_testConnected("127.0.0.1", "localhost", ok);
        QTEST(text, "text");
        QCOMPARE(icon, QMessageBox::Warning);
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

    void operators_data()
    {
        DataTable<int, bool, bool, bool, bool>({"item", "hasApn", "hasLogin", "editable", "list"})
            .row("1", 0, true, true, false, false)
            .row("2", 1, true, true, false, false)
            .row("3", 2, true, false, false, false)
            .row("4", 3, true, false, false, false)
            .row("5", 4, true, true, false, false)
            .row("automatic", 5, false, false, false, true)
            .row("other", 6, false, false, true, false);
    }
    void operators()
    {
        QFETCH(int, item);
        load({{"AP1/name", "own.apn"}});
        get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(6 - item);
        get<QComboBox>("Transfer_comboBox_GSM_Operator_1")->setCurrentIndex(item);
        QTEST(!textOf("Transfer_lineEdit_GSM_APN_1").isEmpty(), "hasApn");
        QTEST(!textOf("Transfer_lineEdit_GSM_Login_1").isEmpty(), "hasLogin");
        QCOMPARE(textOf("Transfer_lineEdit_GSM_Login_1"), textOf("Transfer_lineEdit_GSM_Psw_1"));
        QTEST(isOn("Transfer_lineEdit_GSM_APN_1"), "editable");
        QTEST(isOn("pushButton_AutoAPN_1"), "list");
        // What a preset fills in is recognised when it comes back from a file.
        const Values values = save();
        page().setDefaults();
        load(values);
        QCOMPARE(indexOf("Transfer_comboBox_GSM_Operator_1"), item == 6 ? 5 : item);
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
        QCOMPARE(page().settings().binder().disagreements(), QStringList());
    }

private:
    const char* property(const char* name)
    {
        return qobject_cast<QComboBox*>(get(name)) ? "currentIndex"
                                                   : get(name)->metaObject()->userProperty().name();
    }
};

QTEST_MAIN(TransferTest)
#include "tst_transfer.moc"
