// The quick window's form: what the user chooses and what stands in the file then, over what the full window
// saved before it.

#include "dialog/form_config_light.h"
#include "settings_page.h"
#include "support/data_table.h"
#include "support/disagreements.h"
#include "support/typing.h"

#include <QSpinBox>
#include <QtTest>

class QuickTest : public QObject, private SettingsPage<VLK_Form_Config_Light>
{
    Q_OBJECT

public:
    QuickTest() : SettingsPage("") {}

private Q_SLOTS:
    void init() { open(); }

    // Steps: "load" reads the file, "widget=value" is an edit. Saved: what stands in the file or, behind an
    // exclamation mark, does not; "mask 22 28 -37" are positions of the mask. State: "+widget" is enabled.
    void choices_data()
    {
        const QString fields = "Transfer_lineEdit_GSM_APN_1";
        DataTable<QString, QStringList, QStringList, QStringList>({"file", "steps", "saved", "state"})
            .row("reset", "", {},
                 {"port='5000'", "format='VLKB_ZETA'", "<ROAMSIM1 mode='2'", "useDist='1'", "owner1=''",
                  "!<FS1", "!<GLOBAL", "<IN1 normState='NU' name=''", "mask 0 10 36 -21 -28 -79"},
                 {"+Transfer_lineEdit_GSM_APN_1", "+pushButton_AutoAPN_1", "-groupBox_Track_Param"})
            .row("the operator fills the access point", "", {"Transfer_comboBox_GSM_Operator_1=0"},
                 {"<AP1 name='internet.mts.ru' login='mts' pass='mts'"},
                 {"-" + fields, "-pushButton_AutoAPN_1"})
            .row("another operator", "",
                 {"Transfer_comboBox_GSM_Operator_1=6", "Transfer_lineEdit_GSM_APN_1=own"},
                 {"<AP1 name='own' login='' pass=''"}, {"+" + fields, "-pushButton_AutoAPN_1"})
            .row("an operator's access point is known", "<TRANS><AP1 name='internet'/></TRANS>", {"load"},
                 {"<AP1 name='internet' login=''"}, {"-" + fields, "-pushButton_AutoAPN_1"})
            .row("an unknown access point is kept", "<TRANS><AP1 name='own' login='a'/></TRANS>", {"load"},
                 {"<AP1 name='own' login='a'"}, {"-" + fields, "+pushButton_AutoAPN_1"})
            .row("nothing to test", "", {"GPRSSrv_lineEdit_IP_DNS_Main="}, {"addr=''"},
                 {"-GPRSSrv_toolButton_Test_Main"})
            .row("roaming by a period", "", {"comboBox_RModeSim_1=1", "spinBox_RConnectPeriod=7"},
                 {"<ROAMSIM1 mode='1'", "<ROAM cnctTimer='420'"}, {"+frame_RConnectPeriod"})
            .row("another protocol", "<TRANS><SRV1 format='EGTS'/></TRANS>", {"load"}, {"format='VLKB_ZETA'"},
                 {})
            .row("track preset", "", {"radioButton_Track_Econom=1"},
                 {"angleMode='2'", "dist='1000'", "moveTimer='0'", "stopTimer='600'"},
                 {"-groupBox_Track_Param"})
            .row("no preset of this track", "<TRACK><POINTS angleMode='0' dist='7' useDist='1'/></TRACK>",
                 {"load"}, {"angleMode='0'", "dist='7'"}, {"-groupBox_Track_Param"})
            .row("a preset once more", "<TRACK><POINTS angleMode='0' dist='7'/></TRACK>",
                 {"load", "radioButton_Track_Optimal=1"}, {"angleMode='2'", "dist='500'"}, {})
            .row("a track of one's own", "",
                 {"radioButton_Track_User=1", "Additional_checkBox_Corner=1",
                  "Additional_Direction_checkBox_Sec=0"},
                 {"angleMode='1'", "useTimer='0'"},
                 {"+groupBox_Track_Param", "+Additional_spinBox_Corner",
                  "-Additional_Direction_spinBox_SecStop_Value"})
            .row("empty file", "", {"load"},
                 {"useDist='0'", "port='4000'", "<SENS3 type='1'", "<SENS4 type='1'"},
                 {"-lineEdit_BT_Name_1"})
            .row("ignition", "", {"comboBox_NormState_In_1=3"},
                 {"<IN1 normState='NB+' name='UIN1'", "<IN1ADIN ign='1' cntlRestore='0'", "mask 28"}, {})
            .row("line to ground", "", {"comboBox_NormState_In_2=2"},
                 {"<IN2 normState='NS-' name='UIN2'", "<IN2DIN ign='0' cntlRestore='1'", "mask 28"}, {})
            .row("analogue line", "", {"comboBox_NormState_In_3=3"},
                 {"<IN3 normState='AIN'", "<IN3AIN thld='5000'", "mask 22 -20 -28"}, {})
            .row("a use of the full window alone", "<SENSORS><IN3 normState='FRQ'/></SENSORS>",
                 {"comboBox_NormState_In_3=3", "load"}, {"<IN3 normState='AIN'"}, {})
            .row("sensors of an unused port", "",
                 {"checkBox_Fuel_RS485_Use=1", "checkBox_Fuel_RS485_Use_1=1", "checkBox_Fuel_RS485_Use_2=1",
                  "spinBox_Fuel_RS485_Addres_2=9", "checkBox_Fuel_RS485_Use=0"},
                 {"owner1=''", "<FS1 use='1' type='0' address='1'", "<FS2 use='1' type='0' address='9'",
                  "mask 37 77 38 78 -40"},
                 {"+spinBox_Fuel_RS485_Addres_1"})
            .row("one sensor of the file",
                 "<RS485><OPTIONS owner1='FLDS'/><FS1 use='0'/><FS2 use='1' address='3'/></RS485>", {"load"},
                 {"owner1='FLDS'", "!<FS1", "<FS2 use='1' type='0' address='3'"},
                 {"-spinBox_Fuel_RS485_Addres_1"})
            .row("Bluetooth sensor", "",
                 {"checkBox_BT_Use=1", "checkBox_BT_2=1", "lineEdit_BT_Name_2=tank", "comboBox_BT_Type_2=2",
                  "lineEdit_BT_Mac_2=0a:1B:22"},
                 {"<GLOBAL use='1'", "<CHANNEL1 device='SENS' macaddr=':::::' pass=''", "!<SENS3",
                  "<SENS4 type='1' macaddr='0a:1B:22:::' name='tank'", "<FS4 type='2' idx='4' thld='50'",
                  "mask 40 47 -39 -46 149 -148"},
                 {"+lineEdit_BT_Name_2", "-lineEdit_BT_Name_1"})
            .row("a sensor without a name", "",
                 {"checkBox_BT_Use=1", "checkBox_BT_1=1", "lineEdit_BT_Name_1=tank", "comboBox_BT_Type_1=3"},
                 {"<SENS3 type='1' macaddr=':::::' name=''", "mask 39 46 -148"}, {"-lineEdit_BT_Name_1"})
            .row("other Bluetooth devices",
                 "<BLUETOOTH><CHANNEL1 device='HDSET'/><SENS3 type='1'/></BLUETOOTH>", {"load"},
                 {"!<GLOBAL", "!<SENS3", "mask -39"}, {});
    }
    void choices()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, steps);
        QFETCH(QStringList, saved);
        QFETCH(QStringList, state);
        for (const QString& step : steps) {
            if (step == "load")
                loadText(file);
            else
                take(step.section('=', 0, 0), step.section('=', 1));
        }
        // The mask that the full window saved is as long as the tracker's.
        QString mask(255, '0');
        for (const int position : {0, 10, 21, 28, 36, 79})
            mask[position] = '1';
        const QString text = savedOver(QString("<PROTOCOL><ZETA mask='%1'/></PROTOCOL>").arg(mask));
        for (const QString& wanted : saved) {
            if (wanted.startsWith("mask "))
                QCOMPARE(positionsAgainst(wanted, text), QStringList());
            else
                QVERIFY2(wanted.startsWith('!') != text.contains(QString(wanted).remove('!')),
                         qPrintable(wanted + "\n" + text));
        }
        for (const QString& widget : state)
            QVERIFY2(isOn(widget.mid(1)) == widget.startsWith('+'), qPrintable(widget));
        QCOMPARE(disagreements(page().settings().binder()), QStringList());
    }

    // Three sections are made anew, the others keep what this window does not know. A mask keeps its length.
    void savesOverTheFullWindow()
    {
        page().setDefaults();
        take("checkBox_BT_Use", "1");
        take("checkBox_BT_1", "1");
        take("comboBox_BT_Type_1", "2");
        const QString text = savedOver("<TRANS page='TRANS'><AP1 pin='7'/><SRV2 port='9'/></TRANS>"
                                       "<PROTOCOL><ZETA format='20' mask='1111'/></PROTOCOL>"
                                       "<SENSORS page='SENSORS'><IN9 a='1'/></SENSORS>"
                                       "<RS485><FS7 use='1'/></RS485><BLUETOOTH><TS1 a='1'/></BLUETOOTH>");
        for (const char* kept : {"pin='7'", "<SRV2 port='9'", "<SENSORS page='SENSORS'>",
                                 "<RS485 page='RS485'>", "format='20'", "mask='1111'"})
            QVERIFY2(text.contains(kept), qPrintable(kept + text));
        for (const char* gone : {"IN9", "FS7", "TS1"})
            QVERIFY2(!text.contains(gone), gone);
        QCOMPARE(text.count("<AP1 "), 1);
        QCOMPARE(text.count("<AUTOAPN "), 1);
    }

    void anotherLanguageStartsTheListsAnew()
    {
        take("comboBox_NormState_In_3", "3");
        page().retranslate();
        QCOMPARE(indexOf("comboBox_NormState_In_3"), 0);
        QCOMPARE(indexOf("Transfer_comboBox_Protocol_Format_Main"), 0);
        QCOMPARE(textOf("Transfer_lineEdit_GSM_APN_1"), QString("internet.mts.ru"));
    }

private:
    void take(const QString& name, const QString& value)
    {
        auto* widget = get(name);
        if (auto* list = qobject_cast<QComboBox*>(widget))
            list->setCurrentIndex(value.toInt());
        else if (qobject_cast<QSpinBox*>(widget) || qobject_cast<QLineEdit*>(widget))
            type(widget, "<All><Back>" + value + "<Enter>");
        else if (auto* button = qobject_cast<QAbstractButton*>(widget);
                 button->isChecked() != (value == "1") || button->autoExclusive())
            button->click();
    }

    void loadText(const QString& sections)
    {
        vlk::XmlDocument in(("<DEVICE>" + sections + "</DEVICE>").toLatin1(), "DEVICE");
        page().loadFromXml(in.root());
    }

    QString savedOver(const QString& sections)
    {
        vlk::XmlDocument out(("<DEVICE>" + sections + "</DEVICE>").toLatin1(), "DEVICE");
        page().saveToXml(out.root());
        return QString::fromLatin1(out.text()).replace('"', '\'');
    }

    // Positions of the mask that are not as "mask 22 -28" says.
    static QStringList positionsAgainst(const QString& wanted, const QString& text)
    {
        const QString mask = text.section("mask='", 1).section('\'', 0, 0);
        QStringList wrong;
        for (const QString& position : wanted.split(' ').mid(1)) {
            if (mask[qAbs(position.toInt())] != (position.startsWith('-') ? '0' : '1'))
                wrong << position;
        }
        return wrong;
    }
};

QTEST_MAIN(QuickTest)
#include "tst_quick.moc"
